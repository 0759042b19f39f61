#include "ui/widgets/CuebrightChromeStyle.h"

#include "platform/qt/QtColors.h"
#include "ui/widgets/FocusRing.h"

#include <QPainter>
#include <QTransform>

#include <algorithm>

namespace cuebright {

namespace {

constexpr double kCornerRadius = 6;
constexpr double kPressedFill = 0.5;
constexpr double kReleasedFill = 0.01;
constexpr double kDisabledOpacity = 0.35;

/// One continuous corner, in radii from its tip: along the first side to the start of the curve, then the curve.
void addCorner(QPainterPath& path, const QTransform& toCorner)
{
    const auto at = [&](double x, double y) { return toCorner.map(QPointF(x, y)); };
    path.lineTo(at(1.528665, 0));
    path.cubicTo(at(1.08849296, 0), at(0.86840694, 0), at(0.63149379, 0.07491139));
    path.cubicTo(at(0.37282383, 0.16905956), at(0.16905956, 0.37282383), at(0.07491139, 0.63149379));
    path.cubicTo(at(0, 0.86840694), at(0, 1.08849296), at(0, 1.528665));
}

} // namespace

QPainterPath continuousRoundedRect(const QRectF& rect, double radius)
{
    constexpr double kCornerLength = 1.528665;
    const double r = std::min(radius, std::min(rect.width(), rect.height()) / 2 / kCornerLength);
    // Unit corners with their tip at the origin, first along x then along y, turned into each corner of the rectangle.
    const QTransform topRight(0, r, -r, 0, rect.right(), rect.top());
    const QTransform bottomRight(-r, 0, 0, -r, rect.right(), rect.bottom());
    const QTransform bottomLeft(0, -r, r, 0, rect.left(), rect.bottom());
    const QTransform topLeft(r, 0, 0, r, rect.left(), rect.top());
    QPainterPath path(topLeft.map(QPointF(kCornerLength, 0)));
    const auto mirrored = QTransform(0, 1, 1, 0, 0, 0); // each corner is walked clockwise
    addCorner(path, mirrored * topRight);
    addCorner(path, mirrored * bottomRight);
    addCorner(path, mirrored * bottomLeft);
    addCorner(path, mirrored * topLeft);
    path.closeSubpath();
    return path;
}

void CuebrightChromeStyle::draw(
    QPainter& painter, const QRectF& rect, const State& state, const std::function<void(QPainter&)>& drawLabel) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (!state.isEnabled)
        painter.setOpacity(painter.opacity() * kDisabledOpacity);
    const auto separator = m_colors.sep();
    const double lineWidth = state.hasFocus ? kFocusRingWidth : m_colors.borderWidth();
    const double inset = lineWidth / 2; // the stroke stays inside
    const auto shape = continuousRoundedRect(rect.adjusted(inset, inset, -inset, -inset), kCornerRadius);
    painter.fillPath(
        shape, toQColor(separator.withAlpha(kReleasedFill + (kPressedFill - kReleasedFill) * state.pressed)));
    painter.setPen(QPen(toQColor(m_colors.muted())));
    drawLabel(painter);
    QPen stroke(
        toQColor(state.hasFocus ? m_colors.accent() : separator), lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    stroke.setMiterLimit(10);
    painter.strokePath(shape, stroke);
    painter.restore();
}

} // namespace cuebright
