#include "platform/linux/portal/SettingsPortal.h"

#include <QDBusArgument>
#include <QMap>

#include <utility>

namespace cuebright {

namespace {

QString interfaceName() { return QStringLiteral("org.freedesktop.portal.Settings"); }

} // namespace

SettingsPortal::SettingsPortal(const QDBusConnection& bus, std::function<void(const DesktopSettings&)> changed)
    : m_changed(std::move(changed))
    , m_portal(
          bus, [this] { readAll(); }, [] {})
    , m_settingChanged(bus, {}, Portal::path(), interfaceName(), QStringLiteral("SettingChanged"),
          [this](const QDBusMessage& signal) { onSettingChanged(signal); })
{
    readAll();
}

void SettingsPortal::readAll()
{
    m_portal.call(interfaceName(), QStringLiteral("ReadAll"), {DesktopSettings::groups()},
        [this](const QDBusMessage& reply) { onReply(reply); });
}

void SettingsPortal::onReply(const QDBusMessage& reply)
{
    if (reply.type() == QDBusMessage::ReplyMessage && reply.signature() == QLatin1String("a{sa{sv}}")) {
        m_settings = {};
        const auto groups =
            qdbus_cast<QMap<QString, QVariantMap>>(reply.arguments().constFirst().value<QDBusArgument>());
        for (auto group = groups.begin(); group != groups.end(); ++group)
            for (auto setting = group->begin(); setting != group->end(); ++setting)
                m_settings.set(group.key(), setting.key(), Portal::unwrapped(setting.value()));
    }
    m_hasReply = true;
    m_changed(m_settings);
}

void SettingsPortal::onSettingChanged(const QDBusMessage& signal)
{
    // The outstanding reply will contain this change.
    if (!m_hasReply || signal.signature() != QLatin1String("ssv"))
        return;
    const auto arguments = signal.arguments();
    m_settings.set(arguments[0].toString(), arguments[1].toString(), Portal::unwrapped(arguments[2]));
    m_changed(m_settings);
}

} // namespace cuebright
