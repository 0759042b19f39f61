#pragma once

#include "foundation/Signal.h"
#include "platform/Appearance.h"

#include <QTimer>

#include <optional>

class QPalette;

namespace cuebright {

class QtWindowEvents;

/// The look of all widgets: Fusion style with the program's palette, light or dark.
///
/// The system's setting is guessed from the desktop's palette until `setSystemIsDark` reports it. Make it before the
/// first widget.
class QtAppearance final : public Appearance {
public:
    explicit QtAppearance(QtWindowEvents& windowEvents);

    void choose(Choice choice) override;
    bool isDark() override { return m_isDark; }

    /// Overrides the guess; `nullopt` returns to guessing.
    void setSystemIsDark(std::optional<bool> isDark);

    /// Whether the text is lighter than the background.
    [[nodiscard]] static bool looksDark(const QPalette& palette);

private:
    void guess();
    void update();

    Choice m_choice = Choice::FollowSystem;
    bool m_guessedDark;
    std::optional<bool> m_reportedDark;
    bool m_isDark;
    QTimer m_guessSoon;
    Subscription m_themeSubscription;
};

} // namespace cuebright
