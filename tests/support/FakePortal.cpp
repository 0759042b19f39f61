#include "support/FakePortal.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QRegularExpression>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace cuebright::test {

namespace {

using Shortcuts = QList<QPair<QString, QVariantMap>>;
using Groups = QMap<QString, QVariantMap>;

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kSettings = QStringLiteral("org.freedesktop.portal.Settings");
const QString kShortcuts = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString kRegistry = QStringLiteral("org.freedesktop.host.portal.Registry");
const QString kSession = QStringLiteral("org.freedesktop.portal.Session");
const QString kRequest = QStringLiteral("org.freedesktop.portal.Request");

/// Exceptions become error replies.
void require(bool condition, const char* complaint)
{
    if (!condition)
        throw std::runtime_error(complaint);
}

/// The object path of a session or request, from the client's token.
QString handle(const QDBusMessage& message, const QString& kind, const QVariant& token)
{
    static const QRegularExpression allowed(QStringLiteral("^[A-Za-z0-9_]+$"));
    require(allowed.match(token.toString()).hasMatch(), "invalid token");
    const auto sender = message.service().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
    return QStringList {kPath, kind, sender, token.toString()}.join(QLatin1Char('/'));
}

Shortcuts shortcutsIn(const QDBusMessage& message) { return qdbus_cast<Shortcuts>(message.arguments().value(1)); }

/// The method and its main arguments.
QString lineOf(const QDBusMessage& message)
{
    auto words = QStringList(message.member()) + message.arguments().value(0).toStringList();
    for (const auto& [id, properties] : shortcutsIn(message))
        words << id << properties.value(QStringLiteral("preferred_trigger")).toString()
              << properties.value(QStringLiteral("description")).toString();
    return words.join(QLatin1Char(' '));
}

} // namespace

FakePortal::FakePortal(QDBusConnection bus)
    : m_bus(std::move(bus))
{
    qDBusRegisterMetaType<Shortcuts::value_type>();
    qDBusRegisterMetaType<Shortcuts>();
    qDBusRegisterMetaType<Groups>();
    if (!m_bus.registerVirtualObject(kPath, this, QDBusConnection::SubPath) || !m_bus.registerService(kService))
        qFatal("the fake portal cannot have its name on the bus");
}

void FakePortal::leave()
{
    m_bus.unregisterService(kService);
    m_bus.unregisterObject(kPath);
}

void FakePortal::changeSetting(const QString& group, const QString& key, const QVariant& value)
{
    settings[group][key] = value;
    auto signal = QDBusMessage::createSignal(kPath, kSettings, QStringLiteral("SettingChanged"));
    m_bus.send(signal << group << key << QVariant::fromValue(QDBusVariant(value)));
}

bool FakePortal::activate(const QString& id)
{
    const auto session =
        std::ranges::find_if(sessions, [&](const DesktopSession& one) { return one.shortcuts.contains(id); });
    if (session == sessions.end())
        return false;
    sendActivated(session->path, id);
    return true;
}

void FakePortal::sendActivated(const QString& session, const QString& id)
{
    auto signal = QDBusMessage::createSignal(kPath, kShortcuts, QStringLiteral("Activated"));
    m_bus.send(signal << QVariant::fromValue(QDBusObjectPath(session)) << id << qulonglong(1) << QVariantMap());
}

void FakePortal::closeSession(const QString& session)
{
    m_bus.send(QDBusMessage::createSignal(session, kSession, QStringLiteral("Closed")) << QVariantMap());
    sessions.removeIf([&](const DesktopSession& one) { return one.path == session; });
}

bool FakePortal::handleMessage(const QDBusMessage& message, const QDBusConnection&)
{
    const auto interface = message.interface();
    if (!QStringList {kSettings, kShortcuts, kRegistry, kSession}.contains(interface))
        return false; // Qt replies that the method is unknown
    calls << lineOf(message);
    if ((interface == kShortcuts && !hasShortcuts) || (interface == kRegistry && !hasRegistry))
        return false;
    if (isSilent)
        return true;
    try {
        if (const auto answer = answerTo(message); message.isReplyRequired())
            m_bus.send(message.createReply(answer));
    } catch (const std::runtime_error& refusal) {
        m_bus.send(message.createErrorReply(
            QStringLiteral("org.freedesktop.portal.Error.InvalidArgument"), QString::fromUtf8(refusal.what())));
    }
    return true;
}

QVariantList FakePortal::answerTo(const QDBusMessage& message)
{
    const auto method = message.member();
    if (method == QLatin1String("Register"))
        return {};
    if (method == QLatin1String("ReadAll"))
        return {QVariant::fromValue(settings)};
    if (method == QLatin1String("CreateSession"))
        return createSession(message);
    if (method == QLatin1String("BindShortcuts"))
        return bind(message);
    require(method == QLatin1String("Close"), "unknown method");
    require(sessions.removeIf([&](const DesktopSession& one) { return one.path == message.path(); }) > 0,
        "invalid session");
    return {};
}

QVariantList FakePortal::createSession(const QDBusMessage& message)
{
    require(message.signature() == QLatin1String("a{sv}"), "wrong signature");
    const auto options = qdbus_cast<QVariantMap>(message.arguments()[0]);
    const auto path = handle(message, QStringLiteral("session"), options.value(QStringLiteral("session_handle_token")));
    require(!std::ranges::count(sessions, path, &DesktopSession::path), "session exists");
    if (responseToCreate == 0)
        sessions.append({path, message.service(), {}});
    return respond(message, options, responseToCreate, {{QStringLiteral("session_handle"), path}});
}

QVariantList FakePortal::bind(const QDBusMessage& message)
{
    require(message.signature() == QLatin1String("oa(sa{sv})sa{sv}"), "wrong signature");
    const auto path = message.arguments()[0].value<QDBusObjectPath>().path();
    const auto session = std::ranges::find(sessions, path, &DesktopSession::path);
    require(session != sessions.end() && session->client == message.service(), "invalid session");
    require(!std::exchange(session->wasBound, true), "bound before");
    auto bound = shortcutsIn(message);
    for (auto& [id, properties] : bound) {
        properties.insert(QStringLiteral("trigger_description"), triggerDescription);
        if (responseToBind == 0)
            session->shortcuts << id;
    }
    return respond(message, qdbus_cast<QVariantMap>(message.arguments()[3]), responseToBind,
        {{QStringLiteral("shortcuts"), QVariant::fromValue(bound)}});
}

QVariantList FakePortal::respond(
    const QDBusMessage& request, const QVariantMap& options, uint response, const QVariantMap& results)
{
    const auto path = handle(request, QStringLiteral("request"), options.value(QStringLiteral("handle_token")));
    auto signal = QDBusMessage::createTargetedSignal(request.service(), path, kRequest, QStringLiteral("Response"));
    m_bus.send(signal << response << (response == 0 ? results : QVariantMap()));
    return {QVariant::fromValue(QDBusObjectPath(path))};
}

} // namespace cuebright::test
