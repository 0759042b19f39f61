#pragma once

#include <QHash>
#include <QStringList>
#include <QVariant>

#include <optional>

namespace cuebright {

/// The desktop's settings for motion, contrast and colours: the portal's own `org.freedesktop.appearance`, else the
/// older ones of GNOME and KDE.
///
/// A setting that is missing or has another type than expected counts as not set.
class DesktopSettings final {
public:
    /// The groups of settings that are read; `set` ignores others.
    [[nodiscard]] static QStringList groups();

    void set(const QString& group, const QString& key, const QVariant& value);

    [[nodiscard]] bool reduceMotion() const;
    [[nodiscard]] bool increaseContrast() const;
    [[nodiscard]] std::optional<bool> isDark() const; ///< empty: no preference

private:
    QHash<QString, QVariant> m_values; ///< by "group key"
};

} // namespace cuebright
