#pragma once

namespace cuebright {

/// Names the program on the desktop: its desktop file, bus name and icon. The files in `packaging` bear it too.
inline constexpr const char* kApplicationId = "app.cuebright.Cuebright";

} // namespace cuebright
