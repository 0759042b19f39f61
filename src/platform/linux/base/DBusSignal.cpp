#include "platform/linux/base/DBusSignal.h"

#include <utility>

namespace cuebright {

DBusSignal::DBusSignal(QDBusConnection bus, const QString& service, const QString& path, const QString& interface,
    const QString& name, std::function<void(const QDBusMessage&)> received)
    : m_received(std::move(received))
{
    bus.connect(service, path, interface, name, this, SLOT(receive(QDBusMessage)));
}

void DBusSignal::receive(const QDBusMessage& message) { m_received(message); }

} // namespace cuebright
