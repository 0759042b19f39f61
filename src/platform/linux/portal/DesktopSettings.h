#pragma once

#include <QHash>
#include <QStringList>
#include <QVariant>

#include <optional>

namespace cuebright {

/// What the user has told the desktop about motion, contrast and colours, in the words of its settings: the portal's
/// own `org.freedesktop.appearance`, and where that is silent the older ones of GNOME and KDE.
///
/// What is missing, or not of the type it should have, is not asked for.
class DesktopSettings final {
public:
    /// The groups of settings that count here.
    [[nodiscard]] static QStringList groups();

    void set(const QString& group, const QString& key, const QVariant& value);

    [[nodiscard]] bool reduceMotion() const;
    [[nodiscard]] bool increaseContrast() const;
    [[nodiscard]] std::optional<bool> isDark() const; ///< nothing: no preference

private:
    QHash<QString, QVariant> m_values; ///< by group and key, a blank between them
};

} // namespace cuebright
