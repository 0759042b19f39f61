#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

#include <functional>

namespace cuebright {

/// One signal on a message bus, passed on to a function as long as this lives. It takes a slot to get one.
class DBusSignal final : public QObject {
    Q_OBJECT

public:
    /// Empty `service` or `path` stand for all. `received` runs on the main thread.
    DBusSignal(QDBusConnection bus, const QString& service, const QString& path, const QString& interface,
        const QString& name, std::function<void(const QDBusMessage&)> received);

private:
    Q_SLOT void receive(const QDBusMessage& message);

    std::function<void(const QDBusMessage&)> m_received;
};

} // namespace cuebright
