#include "support/PrivateBus.h"

#include <QDBusError>
#include <QUuid>

namespace cuebright::test {

PrivateBus::PrivateBus()
{
    m_daemon.start(QStringLiteral("dbus-daemon"),
        {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
            QStringLiteral("--print-address=1")});
    if (!m_daemon.waitForStarted() || !m_daemon.waitForReadyRead())
        qFatal("no message bus: %s", qPrintable(m_daemon.errorString()));
    m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
}

PrivateBus::~PrivateBus()
{
    for (const auto& name : m_connections)
        QDBusConnection::disconnectFromBus(name);
    m_daemon.terminate();
    m_daemon.waitForFinished();
}

QDBusConnection PrivateBus::connect()
{
    m_connections << QUuid::createUuid().toString();
    auto connection = QDBusConnection::connectToBus(m_address, m_connections.back());
    if (!connection.isConnected())
        qFatal("the bus cannot be reached: %s", qPrintable(connection.lastError().message()));
    return connection;
}

} // namespace cuebright::test
