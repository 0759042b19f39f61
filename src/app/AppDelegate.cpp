#include "app/AppDelegate.h"

#include "ui/base/Notifications.h"
#include "ui/editor/MarkdownEditor.h"
#include "ui/menu/MenuBarStrip.h"
#include "ui/menu/StatusItem.h"
#include "ui/onboarding/OnboardingOverlay.h"
#include "ui/panel/CardContentView.h"
#include "ui/panel/NotesPanel.h"
#include "ui/settings/About.h"
#include "ui/settings/SettingsWindow.h"
#include "ui/widgets/ApplicationIcon.h"

#include <QApplication>
#include <QMessageBox>

#include <utility>

namespace cuebright {

AppDelegate::AppDelegate(const Platform& platform, const Desktop& desktop)
    : m_store(platform)
    , m_context {m_store, m_notifications, platform, desktop}
{
}

AppDelegate::~AppDelegate() = default;

AppDelegate::Shell::Shell(const UiContext& context, std::function<void(Command)> perform)
    : panelController(context)
    , editCommands(context.store, panelController.panelWindow())
    , mainMenu(context, editCommands, panelController.panelWindow(), std::move(perform))
    , exportCommand(context, panelController.panelWindow())
{
}

void AppDelegate::applicationDidFinishLaunching()
{
    m_shell.emplace(m_context, [this](Command command) { perform(command); });
    buildMainMenu();
    showOnboarding(); // before the panel is shown: the focus is the overlay's
    m_shell->panelController.showPanel();
    m_deleteSubscription = m_notifications.observe(kDeleteCardNotification, [this] { deleteCard(); });
}

/// The menu bar can wait for the first frame, the shortcuts cannot.
void AppDelegate::buildMainMenu() { m_shell->mainMenu.addActionsTo(panelWindow()); }

void AppDelegate::onFirstFrame()
{
    m_shell->mainMenu.addMenusTo(*new MenuBarStrip(m_context, &panelWindow()));
    QApplication::setWindowIcon(applicationIcon());
    setupStatusItem();
}

void AppDelegate::setupStatusItem()
{
    m_statusItem = std::make_unique<StatusItem>(m_context, m_shell->panelController, [this] { quit(); });
}

bool AppDelegate::applicationShouldHandleReopen()
{
    m_shell->panelController.showPanel();
    return true;
}

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
    auto& panelController = m_shell->panelController;
    auto& content = panelController.content();
    const auto overlay = new OnboardingOverlay(m_context, &content);
    panelController.setContentCovered(true);
    QObject::connect(overlay, &OnboardingOverlay::finished, &content, [overlay, &panelController, &content] {
        overlay->deleteLater();
        content.takeFocus();
        panelController.setContentCovered(false);
    });
}

} // namespace cuebright
