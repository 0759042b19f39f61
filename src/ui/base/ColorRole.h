#pragma once

#include "theme/Colors.h"

namespace cuebright {

/// The colours of the panel's texts and symbols, by purpose.
enum class ColorRole { Text, Muted, Accent, Red, Orange };

/// Red and orange are legible on the panel's background, light and dark.
[[nodiscard]] Color colorFor(ColorRole role, const Colors& colors);

} // namespace cuebright
