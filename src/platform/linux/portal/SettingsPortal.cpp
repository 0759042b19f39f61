#include "platform/linux/portal/SettingsPortal.h"

#include <QDBusArgument>
#include <QMap>

#include <utility>

namespace cuebright {

namespace {

QString interfaceName() { return QStringLiteral("org.freedesktop.portal.Settings"); }

} // namespace

SettingsPortal::SettingsPortal(const QDBusConnection& bus, std::function<void(const DesktopSettings&)> told)
    : m_told(std::move(told))
    , m_portal(
          bus, [this] { ask(); }, [] {})
    , m_settingChanged(bus, {}, Portal::path(), interfaceName(), QStringLiteral("SettingChanged"),
          [this](const QDBusMessage& signal) { takeChange(signal); })
{
    ask();
}

void SettingsPortal::ask()
{
    m_portal.call(interfaceName(), QStringLiteral("ReadAll"), {DesktopSettings::groups()},
        [this](const QDBusMessage& answer) { takeAll(answer); });
}

void SettingsPortal::takeAll(const QDBusMessage& answer)
{
    if (answer.type() == QDBusMessage::ReplyMessage && answer.signature() == QLatin1String("a{sa{sv}}")) {
        m_settings = {};
        const auto groups =
            qdbus_cast<QMap<QString, QVariantMap>>(answer.arguments().constFirst().value<QDBusArgument>());
        for (auto group = groups.begin(); group != groups.end(); ++group)
            for (auto setting = group->begin(); setting != group->end(); ++setting)
                m_settings.set(group.key(), setting.key(), Portal::unwrapped(setting.value()));
    }
    m_hasAnswer = true;
    m_told(m_settings);
}

void SettingsPortal::takeChange(const QDBusMessage& signal)
{
    // The answer that is still to come holds this change too, and all the rest with it.
    if (!m_hasAnswer || signal.signature() != QLatin1String("ssv"))
        return;
    const auto arguments = signal.arguments();
    m_settings.set(arguments[0].toString(), arguments[1].toString(), Portal::unwrapped(arguments[2]));
    m_told(m_settings);
}

} // namespace cuebright
