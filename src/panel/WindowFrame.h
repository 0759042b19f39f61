#pragma once

#include "platform/Preferences.h"

#include <QList>
#include <QRect>

#include <optional>

namespace cuebright {

// Where a window stands, without its title bar and borders, in logical pixels. Kept under "x", "y", "w" and "h" with
// the origin at the bottom left of the primary screen and y growing upwards.

[[nodiscard]] Preferences::Numbers storedFrame(const QRect& frame, const QRect& primaryScreen);

/// The frame kept in `stored`, no smaller than `minimumSize`. Absent where a number is missing or none of `screens`
/// (their parts free of panels and docks) shows any of it.
[[nodiscard]] std::optional<QRect> restoredFrame(const Preferences::Numbers& stored, const QRect& primaryScreen,
    const QSize& minimumSize, const QList<QRect>& screens);

} // namespace cuebright
