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

/// What throws is answered with an error.
void require(bool condition, const char* complaint)
{
    if (!condition)
        throw std::runtime_error(complaint);
}

QString checkedToken(const QVariantMap& options, const QString& name)
{
    static const QRegularExpression allowed(QStringLiteral("^[A-Za-z0-9_]+$"));
    const auto token = options.value(name).toString();
    require(allowed.match(token).hasMatch(), "invalid token");
    return token;
}

QString handle(const QDBusMessage& message, const QString& kind, const QString& token)
{
    auto sender = message.service().mid(1);
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    return kPath + QLatin1Char('/') + kind + QLatin1Char('/') + sender + QLatin1Char('/') + token;
}

QVariantMap mapAt(const QDBusMessage& message, int index)
{
    return qdbus_cast<QVariantMap>(message.arguments().value(index));
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
    const auto session = std::ranges::find_if(sessions, [&](const Session& one) { return one.shortcuts.contains(id); });
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
    auto signal = QDBusMessage::createSignal(session, kSession, QStringLiteral("Closed"));
    m_bus.send(signal << QVariantMap());
    sessions.removeIf([&](const Session& one) { return one.path == session; });
}

bool FakePortal::handleMessage(const QDBusMessage& message, const QDBusConnection&)
{
    const QStringList known {kSettings, kShortcuts, kRegistry, kSession};
    if (!known.contains(message.interface()))
        return false; // an unknown method, says the toolkit
    if ((message.interface() == kShortcuts && !hasShortcuts) || (message.interface() == kRegistry && !hasRegistry)) {
        note(message.member());
        return false;
    }
    try {
        const auto answer = answerTo(message);
        if (!isSilent && message.isReplyRequired())
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
    const auto first = message.arguments().value(0);
    if (method == QLatin1String("ReadAll"))
        return readAll(first.toStringList());
    if (method == QLatin1String("Register")) {
        note(method + QLatin1Char(' ') + first.toString());
        return {};
    }
    if (method == QLatin1String("CreateSession"))
        return createSession(message);
    if (method == QLatin1String("BindShortcuts"))
        return bind(message);
    require(method == QLatin1String("Close"), "unknown method");
    close(message);
    return {};
}

QVariantList FakePortal::readAll(const QStringList& groups)
{
    note(QStringLiteral("ReadAll ") + groups.join(QLatin1Char(' ')));
    auto answer = settings;
    answer.removeIf([&](const auto& group) { return !groups.isEmpty() && !groups.contains(group.key()); });
    return {QVariant::fromValue(answer)};
}

QVariantList FakePortal::createSession(const QDBusMessage& message)
{
    note(message.member());
    require(message.signature() == QLatin1String("a{sv}"), "wrong signature");
    const auto options = mapAt(message, 0);
    const auto path =
        handle(message, QStringLiteral("session"), checkedToken(options, QStringLiteral("session_handle_token")));
    require(!findSession(path), "session exists");
    if (responseToCreate == 0 && !isSilent)
        sessions.append({path, message.service(), {}});
    return respond(message, options, responseToCreate, {{QStringLiteral("session_handle"), path}});
}

QVariantList FakePortal::bind(const QDBusMessage& message)
{
    require(message.signature() == QLatin1String("oa(sa{sv})sa{sv}"), "wrong signature");
    const auto shortcuts = qdbus_cast<Shortcuts>(message.arguments().at(1));
    Shortcuts bound;
    for (const auto& [id, properties] : shortcuts) {
        note(message.member() + QLatin1Char(' ') + id + QLatin1Char(' ')
            + properties.value(QStringLiteral("preferred_trigger")).toString());
        lastShortcut = properties;
        bound.append({id,
            {{QStringLiteral("description"), properties.value(QStringLiteral("description"))},
                {QStringLiteral("trigger_description"), triggerDescription}}});
    }
    auto* const session = findSession(message.arguments().at(0).value<QDBusObjectPath>().path());
    require(session && session->client == message.service(), "invalid session");
    require(!std::exchange(session->wasBound, true), "bound before");
    if (responseToBind == 0)
        for (const auto& shortcut : shortcuts)
            session->shortcuts << shortcut.first;
    return respond(
        message, mapAt(message, 3), responseToBind, {{QStringLiteral("shortcuts"), QVariant::fromValue(bound)}});
}

void FakePortal::close(const QDBusMessage& message)
{
    note(message.member());
    require(findSession(message.path()), "invalid session");
    sessions.removeIf([&](const Session& one) { return one.path == message.path(); });
}

QVariantList FakePortal::respond(
    const QDBusMessage& request, const QVariantMap& options, uint response, const QVariantMap& results)
{
    const auto path = handle(request, QStringLiteral("request"), checkedToken(options, QStringLiteral("handle_token")));
    if (!isSilent) {
        auto signal = QDBusMessage::createTargetedSignal(request.service(), path, kRequest, QStringLiteral("Response"));
        m_bus.send(signal << response << (response == 0 ? results : QVariantMap()));
    }
    return {QVariant::fromValue(QDBusObjectPath(path))};
}

FakePortal::Session* FakePortal::findSession(const QString& path)
{
    const auto session = std::ranges::find(sessions, path, &Session::path);
    return session == sessions.end() ? nullptr : &*session;
}

void FakePortal::note(const QString& call)
{
    calls << call;
    called(call);
}

} // namespace cuebright::test
