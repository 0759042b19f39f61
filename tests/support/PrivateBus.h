#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>

namespace cuebright::test {

/// A private message bus while the object lives; aborts if none can be started.
class PrivateBus final {
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    /// A new connection each time: a connection cannot call itself.
    [[nodiscard]] QDBusConnection connect();
    [[nodiscard]] const QString& address() const { return m_address; }

private:
    QProcess m_daemon;
    QString m_address;
    QStringList m_connections;
};

} // namespace cuebright::test
