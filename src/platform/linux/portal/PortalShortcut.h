#pragma once

#include "platform/HotKeys.h"
#include "platform/linux/base/DBusSignal.h"
#include "platform/linux/portal/Portal.h"

#include <functional>

namespace cuebright {

/// One hot key bound through `org.freedesktop.portal.GlobalShortcuts`: a session with one shortcut, created again for
/// each portal that appears and closed with this object.
class PortalShortcut final {
public:
    /// Starts binding immediately; `bus` must be connected.
    PortalShortcut(QDBusConnection bus, const HotKey& key, std::function<void()> pressed);
    PortalShortcut(const PortalShortcut&) = delete;
    PortalShortcut& operator=(const PortalShortcut&) = delete;
    ~PortalShortcut();

    /// Whether the desktop has granted the shortcut and assigned a key to it.
    [[nodiscard]] bool isBound() const { return m_isBound; }

private:
    void begin();
    void forget();
    void createSession();
    void bind();
    void onResponse(const QDBusMessage& signal);
    void onActivated(const QDBusMessage& signal) const;
    [[nodiscard]] QString requestPath(const QString& step) const;

    QDBusConnection m_bus;
    QString m_id;
    QString m_trigger; ///< in the syntax of the freedesktop.org shortcuts specification
    QString m_purpose;
    std::function<void()> m_pressed;
    QString m_token; ///< of the current session or the attempt to create one
    QString m_session; ///< path of the session; empty while there is none
    bool m_isBound = false;
    Portal m_portal;
    DBusSignal m_response;
    DBusSignal m_activated;
    DBusSignal m_closed;
};

} // namespace cuebright
