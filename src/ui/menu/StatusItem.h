#pragma once

#include "foundation/Signal.h"
#include "ui/base/CoalescedCall.h"
#include "ui/base/UiContext.h"
#include "ui/menu/StatusMenu.h"

#include <QMenu>

#include <functional>
#include <memory>

class QAction;
class QSystemTrayIcon;

namespace cuebright {

class PanelController;
class TrayAvailability;

/// The status item in the desktop's status area: a click shows or hides the panel, its menu also switches decks.
/// Appears as soon as there is such an area; nothing depends on it. Make it after the first frame.
///
/// The menu is one object, filled anew whenever something in it has changed.
class StatusItem final {
public:
    /// `quit` leaves the program. All that is passed in must outlive this.
    StatusItem(const UiContext& context, PanelController& panelController, std::function<void()> quit);
    ~StatusItem();
    StatusItem(const StatusItem&) = delete;
    StatusItem& operator=(const StatusItem&) = delete;

    [[nodiscard]] QMenu& menu() { return m_menu; }
    void rebuildStatusMenu();

private:
    void appear();
    [[nodiscard]] QString actionText(const std::string& title);
    void addItem(const StatusMenuItem& item);
    void switchDeckFromMenu(const QAction& item);

    const UiContext& m_context;
    PanelController& m_panelController;
    std::function<void()> m_quit;
    QMenu m_menu;
    std::vector<StatusMenuItem> m_shown;
    std::unique_ptr<QSystemTrayIcon> m_icon;
    std::unique_ptr<TrayAvailability> m_trayWatch;
    CoalescedCall m_refresh;
    Subscription m_storeSubscription;
    Subscription m_panelSubscription;
};

} // namespace cuebright
