#pragma once

#include "foundation/Signal.h"
#include "platform/HotKeys.h"

#include <QDBusConnection>

#include <optional>

namespace cuebright {

/// Hot keys bound through the desktop's portal, with the user's consent: Plasma from 5.27, GNOME from 48, Hyprland.
/// Written from the portal's documentation; not yet run on any of these desktops.
///
/// Sends nothing before `start`. Where the portal refuses or is missing, the key silently does nothing.
class PortalHotKeys final : public HotKeys {
public:
    /// `connect` opens a connection for hot keys alone, which closes with this object: the portal's `Register` must be
    /// the first call on a connection.
    explicit PortalHotKeys(std::function<QDBusConnection()> connect);
    ~PortalHotKeys() override;
    PortalHotKeys(const PortalHotKeys&) = delete;
    PortalHotKeys& operator=(const PortalHotKeys&) = delete;

    void start();

    /// Never null: whether the key is granted is known only later.
    std::unique_ptr<HotKeyRegistration> registerHotKey(const HotKey& key, std::function<void()> pressed) override;

private:
    std::function<QDBusConnection()> m_connect;
    std::optional<QDBusConnection> m_bus; ///< once started
    Signal<const QDBusConnection&> m_started;
};

} // namespace cuebright
