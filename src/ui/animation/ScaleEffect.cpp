#include "ui/animation/ScaleEffect.h"

#include <QPainter>

namespace cuebright {

void ScaleEffect::setScale(double scale)
{
    m_scale = scale;
    update();
}

void ScaleEffect::draw(QPainter* painter)
{
    QPoint corner;
    const auto picture = sourcePixmap(Qt::LogicalCoordinates, &corner, NoPad);
    const auto centre = sourceBoundingRect().center();
    painter->save();
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->translate(centre);
    painter->scale(m_scale, m_scale);
    painter->translate(-centre);
    painter->drawPixmap(corner, picture);
    painter->restore();
}

} // namespace cuebright
