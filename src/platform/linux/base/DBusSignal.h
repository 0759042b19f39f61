#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

#include <functional>

namespace cuebright {

/// Calls a function for each D-Bus signal of one kind. A class, because QtDBus connects signals to slots only.
class DBusSignal final : public QObject {
    Q_OBJECT

public:
    /// An empty `service` or `path` matches every one. `received` runs on the main thread.
    DBusSignal(QDBusConnection bus, const QString& service, const QString& path, const QString& interface,
        const QString& name, std::function<void(const QDBusMessage&)> received);

private:
    Q_SLOT void receive(const QDBusMessage& message);

    std::function<void(const QDBusMessage&)> m_received;
};

} // namespace cuebright
