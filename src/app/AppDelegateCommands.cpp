#include "app/AppDelegate.h"

#include "platform/RemoteRequest.h"
#include "platform/system/WindowActivation.h"
#include "store/ThemeChoices.h"
#include "ui/base/LinkOpener.h"
#include "ui/base/ModalSheets.h"
#include "ui/base/Notifications.h"
#include "ui/panel/NotesPanel.h"
#include "ui/settings/About.h"
#include "ui/settings/Product.h"
#include "ui/settings/SettingsWindow.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace cuebright {

void AppDelegate::perform(Command command)
{
    switch (command) {
    case Command::ShowAbout:
        return showAbout();
    case Command::OpenSettings:
        return openSettings();
    case Command::CheckForUpdates:
        return checkForUpdates();
    case Command::Quit:
        return quit();
    case Command::NewCard:
        return m_store.addCard();
    case Command::DeleteCard:
        return deleteCard();
    case Command::NewDeck:
        return m_store.createNewDeck("New Deck");
    case Command::DeleteDeck:
        return m_store.deleteActiveDeck();
    case Command::RenameDeck:
        return renameDeck();
    case Command::ExportDeck:
        return m_shell->exportCommand.exportDeck();
    case Command::SaveCard:
        return m_store.saveEdit();
    case Command::CancelEdit:
        return m_store.cancelEdit();
    case Command::SetThemeSystem:
    case Command::SetThemeLight:
    case Command::SetThemeDark:
        return m_store.setTheme(themeOf(command));
    case Command::IncreaseTextSize:
        return m_store.increaseFontSize();
    case Command::DecreaseTextSize:
        return m_store.decreaseFontSize();
    case Command::ResetTextSize:
        return m_store.resetFontSize();
    case Command::IncreaseOpacity:
        return m_store.increaseOpacity();
    case Command::DecreaseOpacity:
        return m_store.decreaseOpacity();
    case Command::ShowPanel:
        return showPanel();
    case Command::MoveCardUp:
        return m_store.moveCardUp();
    case Command::MoveCardDown:
        return m_store.moveCardDown();
    case Command::Minimize:
        if (const auto window = QApplication::activeWindow(); window == &panelWindow())
            window->showMinimized();
        return;
    case Command::OpenSupport:
        return openSupport();
    case Command::EmailSupport:
        return emailSupport();
    case Command::Undo:
    case Command::Redo:
    case Command::Cut:
    case Command::Copy:
    case Command::Paste:
    case Command::SelectAll:
        m_shell->editCommands.perform(command);
        return;
    }
}

void AppDelegate::perform(const RemoteRequest& request)
{
    const bool isWaiting = isWaitingForAnswer(panelWindow());
    switch (request.action) {
    case RemoteRequest::Action::Activate:
        applicationShouldHandleReopen();
        if (const auto question = QApplication::activeModalWidget())
            return activateForUser(*question, request.token);
        return activateForUser(panelWindow(), request.token);
    case RemoteRequest::Action::ShowPanel:
        m_shell->panelController.showPanel();
        break;
    case RemoteRequest::Action::TogglePanel:
        m_notifications.post(kTogglePanelNotification);
        break;
    case RemoteRequest::Action::NextCard:
        if (!isWaiting)
            m_store.nextCard();
        break;
    case RemoteRequest::Action::PreviousCard:
        if (!isWaiting)
            m_store.prevCard();
        break;
    }
    endLaunch(panelWindow(), request.token);
}

void AppDelegate::showPanel()
{
    m_shell->panelController.showPanel();
    panelWindow().activate();
}

/// Asks before deleting. While the question is open nothing but a reset of all data can change the active card: every
/// other way is blocked with the panel or checks `isWaitingForAnswer`.
void AppDelegate::deleteCard()
{
    if (!m_shell)
        return m_store.deleteCard(); // before launching
    if (!m_shell->panelController.isPanelVisible())
        showPanel();
    if (m_deleteSheet)
        return m_deleteSheet->activateWindow();
    m_deleteSheet = new QMessageBox(
        QMessageBox::Warning, QString(), QStringLiteral("Delete this card?"), QMessageBox::NoButton, &panelWindow());
    m_deleteSheet->setAttribute(Qt::WA_DeleteOnClose);
    m_deleteSheet->setWindowModality(Qt::WindowModal);
    m_deleteSheet->setInformativeText(QStringLiteral("This card will be permanently removed from the deck."));
    const auto remove = m_deleteSheet->addButton(QStringLiteral("Delete"), QMessageBox::AcceptRole);
    m_deleteSheet->setDefaultButton(remove);
    m_deleteSheet->setEscapeButton(m_deleteSheet->addButton(QStringLiteral("Cancel"), QMessageBox::RejectRole));
    QObject::connect(remove, &QAbstractButton::clicked, m_deleteSheet, [this] { m_store.deleteCard(); });
    m_deleteSheet->open();
}

void AppDelegate::renameDeck()
{
    if (!m_shell->panelController.isPanelVisible())
        showPanel();
    m_notifications.post(kRenameDeckNotification);
}

void AppDelegate::showAbout()
{
    if (!m_aboutWindow) {
        m_aboutWindow = std::make_unique<AboutWindow>(m_context);
        m_shell->mainMenu.addActionsTo(*m_aboutWindow);
    }
    m_aboutWindow->showBeside(panelWindow());
}

void AppDelegate::openSettings()
{
    if (!m_settingsWindow) {
        m_settingsWindow = std::make_unique<SettingsWindow>(m_context, [this] { resetAllData(); });
        m_shell->mainMenu.addMenusTo(m_settingsWindow->addMenuBar());
        m_shell->mainMenu.addActionsTo(*m_settingsWindow);
    }
    m_settingsWindow->showBeside(panelWindow());
}

void AppDelegate::openSupport() { openLink(product::kSupportPage); }

void AppDelegate::emailSupport() { openLink(product::supportMailLink()); }

/// Only shows what there is: updates come from whoever installed the program.
void AppDelegate::checkForUpdates() { openLink(product::kReleasesPage); }

void AppDelegate::resetAllData()
{
    m_shell->panelController.forgetFrame();
    m_store.resetAllData();
}

} // namespace cuebright
