#pragma once

#include <QRect>
#include <QSize>

namespace cuebright {

/// The frame of a window beside the panel: to its right, else to its left, with the same top; centred on the screen
/// where neither side has room. Clamped to the screen, the top left corner first. Everything includes title bars and
/// borders.
[[nodiscard]] QRect placeBeside(const QRect& panelFrame, const QSize& size, const QRect& availableScreen);

} // namespace cuebright
