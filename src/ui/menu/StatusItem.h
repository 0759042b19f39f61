#pragma once

#include "foundation/Signal.h"
#include "ui/base/CoalescedCall.h"
#include "ui/base/UiContext.h"
#include "ui/menu/StatusMenu.h"

#include <QMenu>

#include <functional>
#include <memory>

class QSystemTrayIcon;

namespace cuebright {

class PanelController;
class TrayAvailability;

/// The icon in the system tray: a click shows or hides the panel, its menu also switches decks. It appears as soon as
/// there is a tray.
class StatusItem final {
public:
    /// `quit` ends the program. All arguments must outlive this.
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
    void switchDeckFromMenu(std::int64_t index);

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
