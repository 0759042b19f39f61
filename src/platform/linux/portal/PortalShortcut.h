#pragma once

#include "platform/HotKeys.h"
#include "platform/linux/base/DBusSignal.h"
#include "platform/linux/portal/Portal.h"

#include <functional>

namespace cuebright {

/// One key held through `org.freedesktop.portal.GlobalShortcuts`: a session with one shortcut, made anew with each
/// portal that appears, and closed with this object.
class PortalShortcut final {
public:
    /// Begins at once, on a connected bus.
    PortalShortcut(QDBusConnection bus, const HotKey& key, std::function<void()> pressed);
    PortalShortcut(const PortalShortcut&) = delete;
    PortalShortcut& operator=(const PortalShortcut&) = delete;
    ~PortalShortcut();

    /// Whether the desktop has agreed and has a key for it.
    [[nodiscard]] bool isBound() const { return m_isBound; }

private:
    void begin();
    void forget();
    void createSession();
    void bind();
    void takeResponse(const QDBusMessage& signal);
    void takeActivation(const QDBusMessage& signal) const;
    [[nodiscard]] QString requestPath(const QString& step) const;

    QDBusConnection m_bus;
    QString m_id;
    QString m_trigger; ///< as freedesktop.org writes keys
    QString m_purpose;
    std::function<void()> m_pressed;
    QString m_token; ///< of this attempt
    QString m_session; ///< path of the session; empty while there is none
    bool m_isBound = false;
    Portal m_portal;
    DBusSignal m_response;
    DBusSignal m_activated;
    DBusSignal m_closed;
};

} // namespace cuebright
