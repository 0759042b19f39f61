#pragma once

#include "foundation/NotificationCenter.h"
#include "store/CardStore.h"
#include "ui/base/UiContext.h"
#include "ui/menu/Command.h"

#include <QPointer>

#include <memory>

class QMessageBox;
class QWidget;

namespace cuebright {

class AboutWindow;
class EditCommands;
class ExportCommand;
class MainMenu;
class PanelController;
class SettingsWindow;
class StatusItem;
struct RemoteRequest;

/// Owns the store and everything that is shown, starts it in order, carries out the commands and ends it all safely.
/// Lives as long as the application.
class AppDelegate final {
public:
    AppDelegate(const Platform& platform, const Desktop& desktop);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;
    ~AppDelegate();

    void applicationDidFinishLaunching();
    /// The rest of launching, which the panel does not need in order to be seen.
    void onFirstFrame();
    /// The user opens the application again: shows the panel, and says that this was done.
    bool applicationShouldHandleReopen();
    /// Keeps an open edit, with what an input method still holds, and writes everything to disk.
    void applicationWillTerminate();
    /// The same without asking the input method: needs no display.
    void saveEverything();
    /// Leaves the event loop with status 0, whatever windows are open; on its way out the program saves.
    void quit();

    /// Null before launching has finished.
    [[nodiscard]] QWidget* panelWindow() const;
    [[nodiscard]] CardStore& store() { return m_store; }

    // Commands (AppDelegateCommands.cpp)
    void perform(Command command);
    /// Call when launching has finished. While a question is open, no request changes the card.
    void perform(const RemoteRequest& request);

private:
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
    std::unique_ptr<PanelController> m_panelController;
    std::unique_ptr<EditCommands> m_editCommands;
    std::unique_ptr<MainMenu> m_mainMenu;
    std::unique_ptr<ExportCommand> m_exportCommand;
    std::unique_ptr<SettingsWindow> m_settingsWindow; ///< made when first opened
    std::unique_ptr<AboutWindow> m_aboutWindow; ///< made when first opened
    std::unique_ptr<StatusItem> m_statusItem;
    QPointer<QMessageBox> m_deleteSheet;
    Subscription m_deleteSubscription;
};

} // namespace cuebright
