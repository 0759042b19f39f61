#pragma once

#include "platform/Preferences.h"

#include <QList>
#include <QRect>

#include <optional>

namespace cuebright {

// Where a window stands, without its title bar and borders, in logical pixels. Kept under "x", "y", "w" and "h" with
// the origin at the bottom left of the primary screen and y growing upwards.

[[nodiscard]] Preferences::Numbers storedFrame(const QRect& frame, const QRect& primaryScreen);

/// Whether any of `screens` (their parts free of panels and docks) shows a part of a window at `frame`, be it only of
/// the title bar above it: a window parked at the lower edge can be drawn out by that.
[[nodiscard]] bool isSeen(const QRect& frame, const QList<QRect>& screens);

/// The frame kept in `stored`, no smaller than `minimumSize`. Absent where a number is missing or the frame is not
/// seen.
[[nodiscard]] std::optional<QRect> restoredFrame(const Preferences::Numbers& stored, const QRect& primaryScreen,
    const QSize& minimumSize, const QList<QRect>& screens);

} // namespace cuebright
