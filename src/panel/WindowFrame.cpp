#include "panel/WindowFrame.h"

#include <QRectF>

#include <algorithm>
#include <cmath>

namespace cuebright {

namespace {

/// No window system has larger coordinates.
constexpr double kFarthest = 1 << 20;

int bottom(const QRect& rect) { return rect.y() + rect.height(); }

} // namespace

Preferences::Numbers storedFrame(const QRect& frame, const QRect& primaryScreen)
{
    return {{"x", frame.x() - primaryScreen.x()}, {"y", bottom(primaryScreen) - bottom(frame)}, {"w", frame.width()},
        {"h", frame.height()}};
}

std::optional<QRect> restoredFrame(const Preferences::Numbers& stored, const QRect& primaryScreen,
    const QSize& minimumSize, const QList<QRect>& screens)
{
    for (const char* name : {"x", "y", "w", "h"}) {
        const auto number = stored.find(name);
        if (number == stored.end() || std::abs(number->second) > kFarthest)
            return std::nullopt;
    }
    const double width = std::max<double>(stored.at("w"), minimumSize.width());
    const double height = std::max<double>(stored.at("h"), minimumSize.height());
    const double x = primaryScreen.x() + stored.at("x");
    const double y = bottom(primaryScreen) - stored.at("y") - height;
    const QRect frame = QRectF(x, y, width, height).toRect();
    const bool isSeen = std::ranges::any_of(screens, [&](const QRect& screen) { return screen.intersects(frame); });
    return isSeen ? std::optional(frame) : std::nullopt;
}

} // namespace cuebright
