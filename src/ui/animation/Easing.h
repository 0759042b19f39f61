#pragma once

#include "store/Change.h"

#include <QEasingCurve>
#include <QPointF>

namespace cuebright {

/// The curves of all animations: cubic Béziers as CSS names them, `ease-in-out` and `ease-out`.
[[nodiscard]] inline QEasingCurve easingCurve(Animation::Curve curve)
{
    QEasingCurve easing(QEasingCurve::BezierSpline);
    const double startX = curve == Animation::Curve::EaseInOut ? 0.42 : 0.0;
    easing.addCubicBezierSegment({startX, 0}, {0.58, 1}, {1, 1});
    return easing;
}

/// The unit of Qt's animations.
[[nodiscard]] inline int milliseconds(Seconds duration) { return static_cast<int>(duration.count() * 1000); }

} // namespace cuebright
