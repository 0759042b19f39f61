#pragma once

namespace cuebright {

/// A colour in one RGB space; components and opacity from 0 to 1.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    [[nodiscard]] constexpr Color withAlpha(double newAlpha) const { return {red, green, blue, newAlpha}; }
    bool operator==(const Color&) const = default;
};

/// A colour that differs between the light and the dark look.
struct DynamicColor {
    Color light;
    Color dark;

    [[nodiscard]] constexpr Color resolved(bool isDark) const { return isDark ? dark : light; }
};

/// The five base colours: warm paper and ink with a rust accent.
namespace Palette {
inline constexpr DynamicColor windowBackground {{0.945, 0.925, 0.902}, {0.145, 0.133, 0.125}};
inline constexpr DynamicColor accent {{0.698, 0.2, 0.118}, {0.82, 0.32, 0.22}};
inline constexpr DynamicColor textPrimary {{0.153, 0.129, 0.11}, {0.91, 0.886, 0.863}};
inline constexpr DynamicColor textMuted {{0.53, 0.49, 0.455}, {0.55, 0.51, 0.48}};
inline constexpr DynamicColor separator {{0.82, 0.788, 0.753}, {0.28, 0.26, 0.24}};
} // namespace Palette

} // namespace cuebright
