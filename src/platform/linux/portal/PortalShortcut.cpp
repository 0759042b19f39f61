#include "platform/linux/portal/PortalShortcut.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QGuiApplication>
#include <QUuid>

#include <algorithm>
#include <utility>

namespace cuebright {

namespace {

using Shortcuts = QList<QPair<QString, QVariantMap>>; // a(sa{sv})

QString shortcutsInterface() { return QStringLiteral("org.freedesktop.portal.GlobalShortcuts"); }
QString sessionInterface() { return QStringLiteral("org.freedesktop.portal.Session"); }
QString createStep() { return QStringLiteral("create"); }
QString bindStep() { return QStringLiteral("bind"); }

QString text(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

/// Portals send paths as object paths or as text.
QString path(const QVariant& value)
{
    const auto objectPath = value.value<QDBusObjectPath>().path();
    return objectPath.isEmpty() ? value.toString() : objectPath;
}

/// Whether a key is assigned to the shortcut. A portal that does not list the bound shortcuts has bound all of them.
bool hasKey(const QVariant& list, const QString& id)
{
    if (!list.canConvert<QDBusArgument>() || list.value<QDBusArgument>().currentSignature() != u"a(sa{sv})")
        return true;
    const auto shortcuts = qdbus_cast<Shortcuts>(list.value<QDBusArgument>());
    const auto ours = std::ranges::find(shortcuts, id, &Shortcuts::value_type::first);
    if (ours == shortcuts.end())
        return false;
    const auto trigger = ours->second.value(QStringLiteral("trigger_description"));
    return !trigger.isValid() || !trigger.toString().isEmpty();
}

} // namespace

PortalShortcut::PortalShortcut(QDBusConnection bus, const HotKey& key, std::function<void()> pressed)
    : m_bus(std::move(bus))
    , m_id(text(key.name))
    , m_trigger(QStringLiteral("CTRL+SHIFT+") + QChar(QLatin1Char(key.letter)).toLower())
    , m_purpose(text(key.purpose))
    , m_pressed(std::move(pressed))
    , m_portal(
          m_bus, [this] { begin(); }, [this] { forget(); })
    , m_response(m_bus, {}, {}, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"),
          [this](const QDBusMessage& signal) { onResponse(signal); })
    , m_activated(m_bus, {}, Portal::path(), shortcutsInterface(), QStringLiteral("Activated"),
          [this](const QDBusMessage& signal) { onActivated(signal); })
    , m_closed(m_bus, {}, {}, sessionInterface(), QStringLiteral("Closed"), [this](const QDBusMessage& signal) {
        if (signal.path() == m_session)
            forget();
    })
{
    qDBusRegisterMetaType<Shortcuts::value_type>();
    qDBusRegisterMetaType<Shortcuts>();
    begin();
}

PortalShortcut::~PortalShortcut()
{
    if (!m_session.isEmpty())
        m_bus.send(
            QDBusMessage::createMethodCall(Portal::service(), m_session, sessionInterface(), QStringLiteral("Close")));
}

void PortalShortcut::begin()
{
    // Unguessable, so that a signal that carries it comes from the portal.
    m_token = QStringLiteral("cuebright_") + QUuid::createUuid().toString(QUuid::Id128);
    // Identifies the program outside a sandbox. Older portals lack this call and newer ones accept it only once, so the
    // reply does not matter, but it has to precede the other calls.
    m_portal.call(QStringLiteral("org.freedesktop.host.portal.Registry"), QStringLiteral("Register"),
        {QGuiApplication::desktopFileName(), QVariantMap()}, [this](const QDBusMessage&) { createSession(); });
}

void PortalShortcut::forget()
{
    m_token.clear();
    m_session.clear();
    m_isBound = false;
}

void PortalShortcut::createSession()
{
    m_portal.call(shortcutsInterface(), QStringLiteral("CreateSession"),
        {QVariantMap {{QStringLiteral("handle_token"), m_token + createStep()},
            {QStringLiteral("session_handle_token"), m_token}}},
        [](const QDBusMessage&) {}); // the result arrives as a Response signal
}

void PortalShortcut::bind()
{
    const Shortcuts shortcuts {
        {m_id, {{QStringLiteral("description"), m_purpose}, {QStringLiteral("preferred_trigger"), m_trigger}}}};
    m_portal.call(shortcutsInterface(), QStringLiteral("BindShortcuts"),
        {QVariant::fromValue(QDBusObjectPath(m_session)), QVariant::fromValue(shortcuts), QString(),
            QVariantMap {{QStringLiteral("handle_token"), m_token + bindStep()}}},
        [](const QDBusMessage&) {});
}

void PortalShortcut::onResponse(const QDBusMessage& signal)
{
    if (m_token.isEmpty() || signal.signature() != QLatin1String("ua{sv}"))
        return;
    const auto arguments = signal.arguments();
    if (arguments[0].toUInt() != 0) // refused
        return;
    const auto results = qdbus_cast<QVariantMap>(arguments[1]);
    if (signal.path() == requestPath(createStep())) {
        m_session = path(results.value(QStringLiteral("session_handle")));
        bind();
    } else if (signal.path() == requestPath(bindStep())) {
        m_isBound = hasKey(results.value(QStringLiteral("shortcuts")), m_id);
    }
}

void PortalShortcut::onActivated(const QDBusMessage& signal) const
{
    const auto arguments = signal.arguments();
    if (arguments.size() < 2 || m_session.isEmpty() || path(arguments[0]) != m_session || arguments[1] != m_id)
        return;
    const auto pressed = m_pressed; // it may destroy this object
    pressed();
}

QString PortalShortcut::requestPath(const QString& step) const
{
    const auto sender = m_bus.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
    return Portal::path() + QStringLiteral("/request/") + sender + QLatin1Char('/') + m_token + step;
}

} // namespace cuebright
