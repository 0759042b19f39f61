#pragma once

#include <QIcon>

namespace cuebright {

/// The program's icon: the one of the user's icon theme where the program is installed, otherwise the one built in.
/// Call once the application object is there.
[[nodiscard]] QIcon applicationIcon();

} // namespace cuebright
