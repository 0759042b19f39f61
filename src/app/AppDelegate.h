#pragma once

#include "app/MainMenu.h"
#include "foundation/NotificationCenter.h"
#include "panel/PanelContext.h"
#include "store/CardStore.h"

#include <memory>

class QWidget;

namespace cuebright {

class PanelController;
struct RemoteRequest;

/// Owns the store and the panel, starts them in order and ends them safely. Lives as long as the application.
class AppDelegate final {
public:
    AppDelegate(const Platform& platform, const Desktop& desktop);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;
    ~AppDelegate();

    void applicationDidFinishLaunching();
    /// The user opens the application again: shows the panel, and says that this was done.
    bool applicationShouldHandleReopen();
    /// Call when launching has finished. While a question is open, no request changes the card.
    void perform(const RemoteRequest& request);
    /// Null before launching has finished.
    [[nodiscard]] QWidget* panelWindow() const;
    /// Keeps an open edit and writes everything to disk.
    void applicationWillTerminate();
    /// Saves and leaves the event loop with status 0, whatever windows are open.
    void quit();

private:
    void showOnboarding();
    void askToDeleteCard();
    void perform(Command command);

    CardStore m_store;
    NotificationCenter m_notifications;
    PanelContext m_context;
    std::unique_ptr<PanelController> m_panelController;
    Subscription m_deleteSubscription;
};

} // namespace cuebright
