#include "app/AppDelegate.h"

#include "ui/base/Notifications.h"

#include "ui/editor/MarkdownEditor.h"
#include "ui/menu/EditCommands.h"
#include "ui/menu/ExportCommand.h"
#include "ui/menu/MainMenu.h"
#include "ui/menu/MenuBarStrip.h"
#include "ui/menu/StatusItem.h"
#include "ui/onboarding/OnboardingOverlay.h"
#include "ui/panel/CardContentView.h"
#include "ui/panel/NotesPanel.h"
#include "ui/panel/PanelController.h"
#include "ui/settings/AboutWindow.h"
#include "ui/settings/SettingsWindow.h"
#include "ui/widgets/ApplicationIcon.h"

#include <QApplication>
#include <QMessageBox>

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
    buildMainMenu();
    m_exportCommand = std::make_unique<ExportCommand>(m_context, m_panelController->panelWindow());
    showOnboarding();
    m_panelController->showPanel();
    m_deleteSubscription = m_notifications.observe(kDeleteCardNotification, [this] { deleteCard(); });
}

void AppDelegate::buildMainMenu()
{
    auto& panel = m_panelController->panelWindow();
    m_editCommands = std::make_unique<EditCommands>(m_store, panel);
    m_mainMenu =
        std::make_unique<MainMenu>(m_context, *m_editCommands, panel, [this](Command command) { perform(command); });
    m_mainMenu->addActionsTo(panel);
}

void AppDelegate::onFirstFrame()
{
    m_mainMenu->addMenusTo(*new MenuBarStrip(m_context, &m_panelController->panelWindow()));
    QApplication::setWindowIcon(applicationIcon());
    setupStatusItem();
}

void AppDelegate::setupStatusItem()
{
    m_statusItem = std::make_unique<StatusItem>(m_context, *m_panelController, [this] { quit(); });
}

bool AppDelegate::applicationShouldHandleReopen()
{
    m_panelController->showPanel();
    return true;
}

QWidget* AppDelegate::panelWindow() const { return m_panelController ? &m_panelController->panelWindow() : nullptr; }

void AppDelegate::applicationWillTerminate()
{
    MarkdownEditor::commitComposition();
    saveEverything();
}

void AppDelegate::saveEverything()
{
    m_store.saveEdit();
    m_store.flushToDisk();
}

void AppDelegate::quit()
{
    // Not QApplication::quit(): a window that stays visible after its close event would cancel that.
    QCoreApplication::exit(0);
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
        content.takeFocus();
        m_panelController->setContentCovered(false);
    };
}

} // namespace cuebright
