#pragma once

#include "theme/Colors.h"

namespace cuebright {

/// What a text or symbol of the panel is drawn in.
enum class ColorRole { Text, Muted, Accent, Red, Orange };

/// Red and orange can be read on the panel's background in both looks.
[[nodiscard]] Color colorFor(ColorRole ink, const Colors& colors);

} // namespace cuebright
