#pragma once

#include "foundation/NotificationCenter.h"
#include "store/CardStore.h"
#include "ui/base/UiContext.h"
#include "ui/menu/EditCommands.h"
#include "ui/menu/ExportCommand.h"
#include "ui/menu/MainMenu.h"
#include "ui/panel/PanelController.h"

#include <QPointer>

#include <memory>
#include <optional>

class QMessageBox;

namespace cuebright {

class AboutWindow;
class SettingsWindow;
class StatusItem;
struct RemoteRequest;

/// Owns the store and all windows, carries out the commands and saves at the end. Lives as long as the application.
///
/// It starts in three phases: the constructor loads the store; `applicationDidFinishLaunching()` shows the panel, whose
/// keys all work from then on; `onFirstFrame()` adds the menu bar and the status item.
class AppDelegate final {
public:
    AppDelegate(const Platform& platform, const Desktop& desktop);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;
    ~AppDelegate();

    void applicationDidFinishLaunching();
    /// The part of launching that can wait until the panel is seen.
    void onFirstFrame();
    /// Shows the panel, when the user opens the application again. Always true: handled.
    bool applicationShouldHandleReopen();
    /// Commits what an input method is composing, then saves everything.
    void applicationWillTerminate();
    /// Saves an open edit and writes everything to disk. Needs no display.
    void saveEverything();
    /// Leaves the event loop with status 0, whatever windows are open.
    void quit();

    /// Call after launching.
    [[nodiscard]] NotesPanel& panelWindow() const { return m_shell->panelController.panelWindow(); }
    [[nodiscard]] CardStore& store() { return m_store; }

    // Commands (AppDelegateCommands.cpp)
    void perform(Command command);
    /// Call after launching. While a dialog waits for an answer, no request changes the card.
    void perform(const RemoteRequest& request);

private:
    /// What exists from launching on, in order of construction.
    struct Shell {
        Shell(const UiContext& context, std::function<void(Command)> perform);

        PanelController panelController;
        EditCommands editCommands;
        MainMenu mainMenu;
        ExportCommand exportCommand;
    };

    void showOnboarding();
    void buildMainMenu();
    void setupStatusItem();

    void showPanel();
    void deleteCard();
    void renameDeck();
    void showAbout();
    void openSettings();
    void openSupport();
    void emailSupport();
    void checkForUpdates();
    void resetAllData();

    CardStore m_store;
    NotificationCenter m_notifications;
    UiContext m_context;
    std::optional<Shell> m_shell;
    std::unique_ptr<SettingsWindow> m_settingsWindow; ///< made when first opened
    std::unique_ptr<AboutWindow> m_aboutWindow; ///< made when first opened
    std::unique_ptr<StatusItem> m_statusItem; ///< made after the first frame
    QPointer<QMessageBox> m_deleteSheet;
    Subscription m_deleteSubscription;
};

} // namespace cuebright
