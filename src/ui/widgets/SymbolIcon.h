#pragma once

#include "ui/widgets/Icon.h"

#include <QIcon>

namespace cuebright {

/// A symbol for the toolkit's own widgets: in the colour of their text, sharp on every screen.
[[nodiscard]] QIcon symbolIcon(Icon icon);

} // namespace cuebright
