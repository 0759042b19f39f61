#include "ui/widgets/ButtonBase.h"

#include "platform/qt/QtColors.h"

#include <QKeyEvent>
#include <QPainter>

namespace cuebright {

void ButtonBase::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || (event->modifiers() & ~Qt::KeypadModifier))
        return QAbstractButton::keyPressEvent(event);
    if (!event->isAutoRepeat())
        click();
}

void ButtonBase::drawFocusRing(QPainter& painter, const QRectF& rect, double cornerRadius) const
{
    if (!hasFocus())
        return;
    painter.setPen(QPen(toQColor(m_context.colors().accent()), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
}

} // namespace cuebright
