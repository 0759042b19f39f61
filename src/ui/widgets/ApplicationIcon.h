#pragma once

#include <QIcon>

namespace cuebright {

/// The program's icon: from the user's icon theme if the program is installed, otherwise built in. Needs the
/// application object.
[[nodiscard]] QIcon applicationIcon();

} // namespace cuebright
