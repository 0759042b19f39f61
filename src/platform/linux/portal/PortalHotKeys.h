#pragma once

#include "foundation/Signal.h"
#include "platform/HotKeys.h"

#include <QDBusConnection>

#include <optional>

namespace cuebright {

/// Keys that the desktop's portal grabs for us, with the user's consent: Plasma from 5.27, GNOME from 48, Hyprland.
/// Written after the portal's documentation; has not run on one of these desktops.
///
/// Nothing is asked before `start`. A refusal and the lack of a portal are silent: the key then does nothing.
class PortalHotKeys final : public HotKeys {
public:
    /// `connect` opens a connection of our own, which ends with this object: a portal takes note of who we are only as
    /// long as nothing else was asked over it.
    explicit PortalHotKeys(std::function<QDBusConnection()> connect);
    ~PortalHotKeys() override;
    PortalHotKeys(const PortalHotKeys&) = delete;
    PortalHotKeys& operator=(const PortalHotKeys&) = delete;

    void start();

    /// Never null: whether the key can be had shows later.
    std::unique_ptr<HotKeyRegistration> registerHotKey(const HotKey& key, std::function<void()> pressed) override;

private:
    std::function<QDBusConnection()> m_connect;
    std::optional<QDBusConnection> m_bus; ///< once started
    Signal<const QDBusConnection&> m_started;
};

} // namespace cuebright
