#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>

#include <functional>

namespace cuebright {

/// The desktop's portal (XDG Desktop Portal) as seen over one connection to the session bus. Never waits.
///
/// Calls start a portal that is installed but not running. What an earlier portal still owed is dropped when it leaves.
class Portal final {
public:
    /// `left` runs when the portal goes away, `appeared` when a new one is there that has been asked nothing yet.
    Portal(QDBusConnection bus, std::function<void()> appeared, std::function<void()> left);

    /// `answered` gets the reply or the error, on the main thread.
    void call(const QString& interface, const QString& method, const QVariantList& arguments,
        std::function<void(const QDBusMessage&)> answered);

    [[nodiscard]] static QString service() { return QStringLiteral("org.freedesktop.portal.Desktop"); }
    [[nodiscard]] static QString path() { return QStringLiteral("/org/freedesktop/portal/desktop"); }

    /// A value without the variants that portals wrap it in, one or several.
    [[nodiscard]] static QVariant unwrapped(QVariant value);

private:
    void changeOwner(const QString& oldOwner, const QString& newOwner);

    QDBusConnection m_bus;
    std::function<void()> m_appeared;
    std::function<void()> m_left;
    int m_generation = 0; ///< tells the answers of one portal from those of the one before
    int m_owedAnswers = 0;
    QObject m_context; ///< ends the watching of calls with this object
    QDBusServiceWatcher m_watcher;
};

} // namespace cuebright
