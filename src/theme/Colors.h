#pragma once

#include "theme/Palette.h"

namespace cuebright {

class Accessibility;

/// The colours that a view draws with, in its current look. A small value: make one for each drawing.
class Colors final {
public:
    /// `accessibility` must outlive this; it is asked anew for every colour.
    Colors(bool isDark, Accessibility& accessibility)
        : m_isDark(isDark)
        , m_accessibility(accessibility)
    {
    }

    [[nodiscard]] bool isDark() const { return m_isDark; }
    [[nodiscard]] bool highContrast() const;

    [[nodiscard]] Color warmBg() const { return Palette::windowBackground.resolved(m_isDark); }
    [[nodiscard]] Color accent() const { return Palette::accent.resolved(m_isDark); }
    [[nodiscard]] Color text() const { return Palette::textPrimary.resolved(m_isDark); }
    [[nodiscard]] Color muted() const;
    [[nodiscard]] Color sep() const;
    /// In logical pixels.
    [[nodiscard]] double borderWidth() const;

private:
    bool m_isDark;
    Accessibility& m_accessibility;
};

} // namespace cuebright
