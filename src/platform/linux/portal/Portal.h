#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>

#include <functional>

namespace cuebright {

/// The XDG Desktop Portal, over one connection to the session bus. Never blocks.
///
/// Calls start a portal that is installed but not running. When the portal leaves the bus, its outstanding replies are
/// dropped.
class Portal final {
public:
    /// `left` runs when the portal leaves the bus, `appeared` when one appears that no call is waiting for.
    Portal(QDBusConnection bus, std::function<void()> appeared, std::function<void()> left);

    /// `answered` receives the reply or the error, on the main thread.
    void call(const QString& interface, const QString& method, const QVariantList& arguments,
        std::function<void(const QDBusMessage&)> answered);

    [[nodiscard]] static QString service() { return QStringLiteral("org.freedesktop.portal.Desktop"); }
    [[nodiscard]] static QString path() { return QStringLiteral("/org/freedesktop/portal/desktop"); }

    /// The value inside the one or several variants that portals wrap it in.
    [[nodiscard]] static QVariant unwrapped(QVariant value);

private:
    void changeOwner(const QString& oldOwner, const QString& newOwner);

    QDBusConnection m_bus;
    std::function<void()> m_appeared;
    std::function<void()> m_left;
    int m_generation = 0; ///< counts the portals; replies of an earlier one are ignored
    int m_pendingReplies = 0;
    QObject m_context; ///< stops watching the calls when it is destroyed
    QDBusServiceWatcher m_watcher;
};

} // namespace cuebright
