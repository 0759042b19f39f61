#include "theme/Colors.h"

namespace cuebright {

namespace {

constexpr DynamicColor kHighContrastMuted {{0.3, 0.27, 0.24}, {0.75, 0.72, 0.69}};
constexpr DynamicColor kHighContrastSeparator {{0.55, 0.52, 0.49}, {0.45, 0.42, 0.39}};

} // namespace

Color Colors::muted() const { return (m_highContrast ? kHighContrastMuted : Palette::textMuted).resolved(m_isDark); }

Color Colors::sep() const { return (m_highContrast ? kHighContrastSeparator : Palette::separator).resolved(m_isDark); }

} // namespace cuebright
