#include "ui/card/CardTransition.h"

#include "ui/animation/Easing.h"

#include <QPainter>

#include <utility>

namespace cuebright {

namespace {

constexpr double kSmallScale = 0.98;

void scaleAboutCentre(QPainter& painter, const QRectF& area, double scale)
{
    painter.translate(area.center());
    painter.scale(scale, scale);
    painter.translate(-area.center());
}

} // namespace

CardTransition::CardTransition(const std::function<void()>& repaint)
{
    m_progress.setStartValue(0.0);
    m_progress.setEndValue(1.0);
    QObject::connect(&m_progress, &QVariantAnimation::valueChanged, &m_progress, repaint);
    QObject::connect(&m_progress, &QVariantAnimation::finished, &m_progress, [this, repaint] {
        m_leaving = {};
        repaint();
    });
}

CardTransition::Kind CardTransition::kindFor(bool isDeckSwitch, NavigationDirection direction)
{
    if (isDeckSwitch)
        return Kind::SwitchDeck;
    return direction == NavigationDirection::Forward ? Kind::SlideForward : Kind::SlideBackward;
}

void CardTransition::start(Kind kind, QPixmap leaving, const Animation& animation)
{
    m_progress.stop();
    m_kind = kind;
    m_leaving = std::move(leaving);
    m_progress.setDuration(milliseconds(animation.duration));
    m_progress.setEasingCurve(easingCurve(animation.curve));
    m_progress.start();
}

void CardTransition::stop()
{
    m_progress.stop();
    m_leaving = {};
}

void CardTransition::draw(QPainter& painter, const QRectF& area, const std::function<void()>& drawArriving) const
{
    const double progress = m_progress.currentValue().toDouble();
    const double travel = m_kind == Kind::SlideBackward ? -area.width() : area.width();
    const bool slides = m_kind != Kind::SwitchDeck;

    painter.save();
    painter.setOpacity(1 - progress);
    if (slides)
        painter.translate(-travel * progress, 0);
    else
        scaleAboutCentre(painter, area, 1 + (kSmallScale - 1) * progress);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !slides);
    painter.drawPixmap(area.topLeft(), m_leaving);
    painter.restore();

    painter.save();
    painter.setOpacity(progress);
    if (slides)
        painter.translate(travel * (1 - progress), 0);
    else
        scaleAboutCentre(painter, area, kSmallScale + (1 - kSmallScale) * progress);
    drawArriving();
    painter.restore();
}

} // namespace cuebright
