#pragma once

#include "ui/widgets/Icon.h"

#include <QIcon>

namespace cuebright {

/// A symbol for Qt's own widgets, in their text colour and sharp at every scale.
[[nodiscard]] QIcon symbolIcon(Icon icon);

} // namespace cuebright
