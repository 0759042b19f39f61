#pragma once

#include <QRect>
#include <QSize>

namespace cuebright {

/// Where a window of this size goes: to the right of the panel or, failing that, to its left, on one height with it;
/// to the middle of the screen where neither side has room. All with title bars and borders; the window is on the
/// screen as far as it fits.
[[nodiscard]] QRect placeBeside(const QRect& panelFrame, const QSize& size, const QRect& availableScreen);

} // namespace cuebright
