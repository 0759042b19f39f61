#pragma once

#include "platform/RemoteRequest.h"
#include "platform/linux/instance/InstanceClaim.h"

#include <QDBusConnection>
#include <QDBusVirtualObject>

#include <functional>

namespace cuebright {

/// The program on the session bus: `org.freedesktop.Application` of the Desktop Entry Specification, at the application
/// id. Whoever owns that name is the one instance.
class ApplicationService final : public QDBusVirtualObject {
public:
    /// `bus` must not be a connection that suspends delivery until the event loop runs, as
    /// QDBusConnection::sessionBus() does.
    explicit ApplicationService(QDBusConnection bus);

    /// Takes the name, or has its owner carry out `Activate`.
    [[nodiscard]] InstanceClaim claim(const QVariantMap& platformData, Seconds timeout = kReplyTimeout);

    /// Passes requests on, those that arrived since the claim immediately. Call it before the event loop runs.
    void deliver(std::function<void(const RemoteRequest&)> perform);

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override;

private:
    QDBusConnection m_bus;
    std::function<void(const RemoteRequest&)> m_perform;
};

} // namespace cuebright
