#pragma once

#include <QPalette>

namespace cuebright {

/// Sets every role, so that no colour of the desktop's palette is used.
[[nodiscard]] QPalette applicationPalette(bool isDark);

} // namespace cuebright
