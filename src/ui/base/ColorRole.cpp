#include "ui/base/ColorRole.h"

namespace cuebright {

namespace {

// At least 4.5 : 1 on the window's background, with high contrast 7 : 1.
constexpr DynamicColor kRed {{0.77, 0.0, 0.1}, {1.0, 0.4, 0.38}};
constexpr DynamicColor kOrange {{0.66, 0.3, 0.0}, {1.0, 0.62, 0.25}};
constexpr DynamicColor kHighContrastRed {{0.62, 0.0, 0.06}, {1.0, 0.58, 0.56}};
constexpr DynamicColor kHighContrastOrange {{0.5, 0.21, 0.0}, {1.0, 0.72, 0.4}};

} // namespace

Color colorFor(ColorRole role, const Colors& colors)
{
    switch (role) {
    case ColorRole::Text:
        return colors.text();
    case ColorRole::Muted:
        return colors.muted();
    case ColorRole::Accent:
        return colors.accent();
    case ColorRole::Red:
        return (colors.highContrast() ? kHighContrastRed : kRed).resolved(colors.isDark());
    case ColorRole::Orange:
        return (colors.highContrast() ? kHighContrastOrange : kOrange).resolved(colors.isDark());
    }
    return {};
}

} // namespace cuebright
