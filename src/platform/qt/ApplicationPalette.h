#pragma once

#include <QPalette>

namespace cuebright {

/// Every role of every widget in the light or the dark look; nothing is left to the desktop's own colours.
[[nodiscard]] QPalette applicationPalette(bool isDark);

} // namespace cuebright
