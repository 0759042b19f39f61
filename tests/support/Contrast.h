#pragma once

#include "theme/Palette.h"

#include <algorithm>
#include <cmath>

namespace cuebright::test {

/// Contrast ratio of two opaque colours as WCAG 2 defines it.
inline double contrast(const Color& a, const Color& b)
{
    const auto luminance = [](const Color& color) {
        const auto linear = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
        return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
    };
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace cuebright::test
