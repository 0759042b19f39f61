#include "ui/settings/WindowPlacement.h"

#include <algorithm>

namespace cuebright {

namespace {

constexpr int kGap = 12;

int within(int start, int length, int screenStart, int screenLength)
{
    return std::max(screenStart, std::min(start, screenStart + screenLength - length));
}

} // namespace

QRect placeBeside(const QRect& panelFrame, const QSize& size, const QRect& availableScreen)
{
    const int right = panelFrame.x() + panelFrame.width() + kGap;
    const int left = panelFrame.x() - kGap - size.width();
    const int screenRight = availableScreen.x() + availableScreen.width();
    QPoint origin(right, panelFrame.y());
    if (right < availableScreen.x() || right + size.width() > screenRight)
        origin.setX(left);
    if (origin.x() < availableScreen.x() || origin.x() + size.width() > screenRight)
        origin = availableScreen.topLeft()
            + QPoint(availableScreen.width() - size.width(), availableScreen.height() - size.height()) / 2;
    return {QPoint(within(origin.x(), size.width(), availableScreen.x(), availableScreen.width()),
                within(origin.y(), size.height(), availableScreen.y(), availableScreen.height())),
        size};
}

} // namespace cuebright
