#include "ui/panel/WindowFrame.h"

#include <QRectF>

#include <algorithm>
#include <cmath>

namespace cuebright {

namespace {

constexpr double kFarthest = 1 << 20; // beyond any window system's coordinates
constexpr int kTitleBar = 20; // not higher than that of any window manager

int bottom(const QRect& rect) { return rect.y() + rect.height(); }

} // namespace

Preferences::Numbers storedFrame(const QRect& frame, const QRect& primaryScreen)
{
    return {{"x", frame.x() - primaryScreen.x()}, {"y", bottom(primaryScreen) - bottom(frame)}, {"w", frame.width()},
        {"h", frame.height()}};
}

bool isSeen(const QRect& frame, const QList<QRect>& screens)
{
    const auto withTitleBar = frame.adjusted(0, -kTitleBar, 0, 0);
    return std::ranges::any_of(screens, [&](const QRect& screen) { return screen.intersects(withTitleBar); });
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
    return isSeen(frame, screens) ? std::optional(frame) : std::nullopt;
}

} // namespace cuebright
