#pragma once

#include "platform/Appearance.h"

#include <QObject>

#include <optional>

class QPalette;

namespace cuebright {

/// The look of all widgets: Fusion style with the program's own palette, light or dark.
///
/// What the system wants is guessed from the palette that the desktop gave to the application, until somebody who knows
/// reports it. Make it after the application and before the first widget.
class QtAppearance final : public QObject, public Appearance {
public:
    QtAppearance();

    void choose(Choice choice) override;
    bool isDark() override { return m_isDark; }

    /// From now on this counts and not the desktop's palette; nothing: the palette again.
    void setSystemIsDark(std::optional<bool> isDark);

    /// Whether a palette writes light on dark.
    [[nodiscard]] static bool looksDark(const QPalette& palette);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void guessAgain();
    void update();

    Choice m_choice = Choice::FollowSystem;
    bool m_guessedDark;
    std::optional<bool> m_reportedDark;
    bool m_isDark;
    bool m_guessWaits = false;
};

} // namespace cuebright
