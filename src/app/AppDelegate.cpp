#include "app/AppDelegate.h"

#include "app/OnboardingOverlay.h"
#include "panel/CardContentView.h"
#include "panel/MarkdownEditor.h"
#include "panel/NotesPanel.h"
#include "panel/PanelController.h"
#include "platform/RemoteRequest.h"
#include "platform/qt/WindowActivation.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace cuebright {

AppDelegate::AppDelegate(const Platform& platform, const Desktop& desktop)
    : m_store(platform)
    , m_context {m_store, m_notifications, platform, desktop}
{
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching()
{
    m_panelController = std::make_unique<PanelController>(m_context);
    addCommandActions(m_panelController->panelWindow(), [this](Command command) { perform(command); });
    showOnboarding();
    m_panelController->showPanel();
    m_deleteSubscription = m_notifications.observe(kDeleteCardNotification, [this] { askToDeleteCard(); });
}

QWidget* AppDelegate::panelWindow() const { return m_panelController ? &m_panelController->panelWindow() : nullptr; }

bool AppDelegate::applicationShouldHandleReopen()
{
    m_panelController->showPanel();
    return true;
}

void AppDelegate::perform(const RemoteRequest& request)
{
    const auto question = QApplication::activeModalWidget();
    switch (request.action) {
    case RemoteRequest::Action::Activate:
        applicationShouldHandleReopen();
        return activateForUser(question ? *question : *panelWindow(), request.token);
    case RemoteRequest::Action::ShowPanel:
        m_panelController->showPanel();
        break;
    case RemoteRequest::Action::TogglePanel:
        m_notifications.post(kTogglePanelNotification);
        break;
    case RemoteRequest::Action::NextCard:
        if (!question)
            m_store.nextCard();
        break;
    case RemoteRequest::Action::PreviousCard:
        if (!question)
            m_store.prevCard();
        break;
    }
    endLaunch(*panelWindow(), request.token);
}

void AppDelegate::applicationWillTerminate()
{
    MarkdownEditor::commitComposition();
    m_store.saveEdit();
    m_store.flushToDisk();
}

/// Asks about the card on show; deletes the one that is active when "Delete" is pressed.
void AppDelegate::askToDeleteCard()
{
    const auto sheet = new QMessageBox(QMessageBox::Warning, QString(), QStringLiteral("Delete this card?"),
        QMessageBox::NoButton, &m_panelController->panelWindow());
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->setWindowModality(Qt::WindowModal);
    sheet->setInformativeText(QStringLiteral("This card will be permanently removed from the deck."));
    const auto remove = sheet->addButton(QStringLiteral("Delete"), QMessageBox::AcceptRole);
    sheet->setDefaultButton(remove);
    sheet->setEscapeButton(sheet->addButton(QStringLiteral("Cancel"), QMessageBox::RejectRole));
    QObject::connect(remove, &QAbstractButton::clicked, sheet, [this] { m_store.deleteCard(); });
    sheet->open();
}

void AppDelegate::showOnboarding()
{
    if (!OnboardingOverlay::isDue(m_context))
        return;
    auto& content = m_panelController->content();
    const auto overlay = new OnboardingOverlay(m_context, &content);
    m_panelController->setContentCovered(true);
    overlay->finished = [this, overlay, &content] {
        overlay->deleteLater();
        content.setFocus();
        m_panelController->setContentCovered(false);
    };
}

void AppDelegate::quit()
{
    applicationWillTerminate();
    // Not QApplication::quit(): a window that stays visible after its close event would cancel that.
    QCoreApplication::exit(0);
}

void AppDelegate::perform(Command command)
{
    MarkdownEditor::commitComposition(); // the command may end the edit
    switch (command) {
    case Command::NewCard:
        return m_store.addCard();
    case Command::NewDeck:
        return m_store.createNewDeck("New Deck");
    case Command::MoveCardUp:
        return m_store.moveCardUp();
    case Command::MoveCardDown:
        return m_store.moveCardDown();
    case Command::Quit:
        return quit();
    }
}

} // namespace cuebright
