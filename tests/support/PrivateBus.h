#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>

namespace cuebright::test {

/// A message bus of our own, as long as the object lives; ends the test run where none can be started.
class PrivateBus final {
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    /// A new connection each time: what talks to each other on the bus must not share one.
    [[nodiscard]] QDBusConnection connect();
    [[nodiscard]] const QString& address() const { return m_address; }

private:
    QProcess m_daemon;
    QString m_address;
    QStringList m_connections;
};

} // namespace cuebright::test
