#include "platform/linux/portal/DesktopSettings.h"

namespace cuebright {

namespace {

std::optional<int> number(const QVariant& value)
{
    const int type = value.typeId();
    if (type != QMetaType::UInt && type != QMetaType::Int)
        return std::nullopt;
    return value.toInt();
}

bool is(const QVariant& value, bool wanted) { return value.typeId() == QMetaType::Bool && value.toBool() == wanted; }

/// KDE stores its settings as text, which not every portal converts to numbers.
bool isZero(const QVariant& value)
{
    const int type = value.typeId();
    if (type != QMetaType::QString && type != QMetaType::Double && !number(value))
        return false;
    bool isNumber = false;
    return value.toDouble(&isNumber) == 0 && isNumber;
}

} // namespace

QStringList DesktopSettings::groups()
{
    return {QStringLiteral("org.freedesktop.appearance"), QStringLiteral("org.gnome.desktop.interface"),
        QStringLiteral("org.gnome.desktop.a11y.interface"), QStringLiteral("org.kde.kdeglobals.KDE")};
}

void DesktopSettings::set(const QString& group, const QString& key, const QVariant& value)
{
    if (groups().contains(group))
        m_values.insert(group + QLatin1Char(' ') + key, value);
}

bool DesktopSettings::reduceMotion() const
{
    if (const auto reduced = number(m_values.value(QStringLiteral("org.freedesktop.appearance reduced-motion"))))
        return *reduced == 1;
    return is(m_values.value(QStringLiteral("org.gnome.desktop.interface enable-animations")), false)
        || isZero(m_values.value(QStringLiteral("org.kde.kdeglobals.KDE AnimationDurationFactor")));
}

bool DesktopSettings::increaseContrast() const
{
    if (const auto contrast = number(m_values.value(QStringLiteral("org.freedesktop.appearance contrast"))))
        return *contrast == 1;
    return is(m_values.value(QStringLiteral("org.gnome.desktop.a11y.interface high-contrast")), true);
}

std::optional<bool> DesktopSettings::isDark() const
{
    const auto scheme = number(m_values.value(QStringLiteral("org.freedesktop.appearance color-scheme"))).value_or(0);
    if (scheme == 1)
        return true;
    return scheme == 2 ? std::optional(false) : std::nullopt;
}

} // namespace cuebright
