#pragma once

#include "platform/Preferences.h"

#include <QList>
#include <QRect>

#include <optional>

namespace cuebright {

// A window's frame, without its title bar and borders, in logical pixels. Stored as "x", "y", "w" and "h" with the
// origin at the bottom left of the primary screen and y growing upwards.

[[nodiscard]] Preferences::Numbers storedFrame(const QRect& frame, const QRect& primaryScreen);

/// Whether a part of the window or of the title bar above it is in one of `screens`. The title bar is enough to drag
/// the window back. `screens`: available areas, without panels and docks.
[[nodiscard]] bool isSeen(const QRect& frame, const QList<QRect>& screens);

/// The frame in `stored`, not smaller than `minimumSize`. Absent if a number is missing or the frame is not seen.
[[nodiscard]] std::optional<QRect> restoredFrame(const Preferences::Numbers& stored, const QRect& primaryScreen,
    const QSize& minimumSize, const QList<QRect>& screens);

} // namespace cuebright
