#pragma once

#include "theme/Palette.h"

namespace cuebright {

/// The colours for the light or dark look, in normal or high contrast. A small value: make one for each paint.
class Colors final {
public:
    Colors(bool isDark, bool highContrast)
        : m_isDark(isDark)
        , m_highContrast(highContrast)
    {
    }

    [[nodiscard]] bool isDark() const { return m_isDark; }
    [[nodiscard]] bool highContrast() const { return m_highContrast; }

    [[nodiscard]] Color warmBg() const { return Palette::windowBackground.resolved(m_isDark); }
    [[nodiscard]] Color accent() const { return Palette::accent.resolved(m_isDark); }
    [[nodiscard]] Color text() const { return Palette::textPrimary.resolved(m_isDark); }
    [[nodiscard]] Color muted() const;
    [[nodiscard]] Color sep() const;
    /// In logical pixels.
    [[nodiscard]] double borderWidth() const { return m_highContrast ? 2 : 1; }

private:
    bool m_isDark;
    bool m_highContrast;
};

} // namespace cuebright
