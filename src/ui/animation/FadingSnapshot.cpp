#include "ui/animation/FadingSnapshot.h"

#include "ui/animation/Easing.h"

#include <QPainter>

#include <utility>

namespace cuebright {

FadingSnapshot::FadingSnapshot(QPixmap picture, const QRect& area, const Animation& animation, QWidget* parent)
    : QWidget(parent)
    , m_picture(std::move(picture))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(area);
    m_progress.setStartValue(1.0);
    m_progress.setEndValue(0.0);
    m_progress.setDuration(milliseconds(animation.duration));
    m_progress.setEasingCurve(easingCurve(animation.curve));
    connect(&m_progress, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(&m_progress, &QVariantAnimation::finished, this, &QObject::deleteLater);
    m_progress.start();
    show();
}

void FadingSnapshot::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setOpacity(m_progress.currentValue().toDouble());
    painter.drawPixmap(0, 0, m_picture);
}

} // namespace cuebright
