#include "platform/linux/instance/ApplicationService.h"

#include "platform/ApplicationId.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QHash>

#include <chrono>
#include <optional>
#include <utility>

namespace cuebright {

namespace {

using Action = RemoteRequest::Action;

QString serviceName() { return QString::fromLatin1(kApplicationId); }
QString objectPath() { return QLatin1Char('/') + serviceName().replace(QLatin1Char('.'), QLatin1Char('/')); }
QString interfaceName() { return QStringLiteral("org.freedesktop.Application"); }

QDBusMessage activateCall(const QVariantMap& platformData)
{
    auto call =
        QDBusMessage::createMethodCall(serviceName(), objectPath(), interfaceName(), QStringLiteral("Activate"));
    call << platformData;
    call.setAutoStartService(false); // if the owner has gone, this launch takes its place
    return call;
}

std::optional<Action> actionCalled(const QString& name)
{
    static const QHash<QString, Action> actions {{QStringLiteral("toggle-panel"), Action::TogglePanel},
        {QStringLiteral("next-card"), Action::NextCard}, {QStringLiteral("previous-card"), Action::PreviousCard}};
    const auto found = actions.find(name);
    return found == actions.end() ? std::nullopt : std::optional(*found);
}

/// The platform data is the last argument of every method.
std::string tokenIn(const QDBusMessage& call)
{
    const auto data = qdbus_cast<QVariantMap>(call.arguments().constLast());
    const auto textAt = [&data](const QString& key) {
        const auto value = data.value(key);
        return value.typeId() == QMetaType::QString ? value.toString().toStdString() : std::string();
    };
    const auto token = textAt(QStringLiteral("activation-token"));
    return token.empty() ? textAt(QStringLiteral("desktop-startup-id")) : token;
}

} // namespace

ApplicationService::ApplicationService(QDBusConnection bus)
    : m_bus(std::move(bus))
{
}

InstanceClaim ApplicationService::claim(const QVariantMap& platformData, Seconds timeout)
{
    if (!m_bus.isConnected())
        return InstanceClaim::Unavailable;
    m_bus.registerVirtualObject(objectPath(), this);
    const auto milliseconds = std::chrono::ceil<std::chrono::milliseconds>(timeout);
    bool isQueued = false;
    for (int attempt = 0; attempt < 3; ++attempt) {
        const auto reply = m_bus.interface()->registerService(serviceName());
        if (!reply.isValid())
            return InstanceClaim::Unavailable;
        if (reply == QDBusConnectionInterface::ServiceRegistered)
            return InstanceClaim::Granted;
        if (isQueued)
            return InstanceClaim::Queued;
        const auto answer =
            m_bus.call(activateCall(platformData), QDBus::Block, static_cast<int>(milliseconds.count()));
        if (answer.type() == QDBusMessage::ReplyMessage)
            return InstanceClaim::HandedOver;
        // Without an answer the owner may have ended, too: the next attempt shows it.
        isQueued = QDBusError(answer).type() == QDBusError::NoReply;
    }
    return isQueued ? InstanceClaim::Queued : InstanceClaim::Unreachable;
}

void ApplicationService::deliver(std::function<void(const RemoteRequest&)> perform)
{
    m_perform = std::move(perform);
    QCoreApplication::sendPostedEvents(this); // QtDBus posts each call
}

QString ApplicationService::introspect(const QString&) const
{
    return QStringLiteral(R"xml(  <interface name="org.freedesktop.Application">
    <method name="Activate">
      <arg name="platform_data" type="a{sv}" direction="in"/>
    </method>
    <method name="Open">
      <arg name="uris" type="as" direction="in"/>
      <arg name="platform_data" type="a{sv}" direction="in"/>
    </method>
    <method name="ActivateAction">
      <arg name="action_name" type="s" direction="in"/>
      <arg name="parameter" type="av" direction="in"/>
      <arg name="platform_data" type="a{sv}" direction="in"/>
    </method>
  </interface>
)xml");
}

bool ApplicationService::handleMessage(const QDBusMessage& call, const QDBusConnection& bus)
{
    if (!call.interface().isEmpty() && call.interface() != interfaceName())
        return false; // introspection, for example, which Qt answers
    const auto refuse = [&](QDBusError::ErrorType error, const QString& text) {
        bus.send(call.createErrorReply(error, text));
        return true;
    };
    const auto method = call.member() + QLatin1Char(' ') + call.signature();
    auto action = std::optional(Action::Activate);
    if (method == u"ActivateAction sava{sv}")
        action = actionCalled(call.arguments().at(0).toString());
    else if (method != u"Activate a{sv}" && method != u"Open asa{sv}") // files to be opened are ignored
        return refuse(QDBusError::UnknownMethod, QStringLiteral("There is no such method"));
    if (!action)
        return refuse(QDBusError::InvalidArgs, QStringLiteral("There is no such action"));
    if (call.arguments().size() == 3 && !qdbus_cast<QVariantList>(call.arguments().at(1)).isEmpty())
        return refuse(QDBusError::InvalidArgs, QStringLiteral("The action takes no parameter"));
    m_perform({*action, tokenIn(call)});
    if (call.isReplyRequired())
        bus.send(call.createReply());
    return true;
}

} // namespace cuebright
