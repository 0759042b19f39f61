#include "ui/settings/WindowPlacement.h"

#include <algorithm>

namespace cuebright {

namespace {

constexpr int kGap = 12;

} // namespace

QRect placeBeside(const QRect& panelFrame, const QSize& size, const QRect& availableScreen)
{
    const auto first = availableScreen.topLeft();
    const QPoint room(availableScreen.width() - size.width(), availableScreen.height() - size.height());
    const auto last = first + room;
    const auto fits = [&](int x) { return x >= first.x() && x <= last.x(); };
    const int right = panelFrame.x() + panelFrame.width() + kGap;
    const int left = panelFrame.x() - kGap - size.width();
    const auto wanted = fits(right) ? QPoint(right, panelFrame.y())
        : fits(left)                ? QPoint(left, panelFrame.y())
                                    : first + room / 2;
    return {{std::max(first.x(), std::min(wanted.x(), last.x())), std::max(first.y(), std::min(wanted.y(), last.y()))},
        size};
}

} // namespace cuebright
