#include "ui/widgets/ButtonBase.h"

#include "ui/widgets/FocusRing.h"

#include <QKeyEvent>

namespace cuebright {

void ButtonBase::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || (event->modifiers() & ~Qt::KeypadModifier))
        return QAbstractButton::keyPressEvent(event);
    if (!event->isAutoRepeat())
        click();
}

void ButtonBase::drawFocusRing(QPainter& painter, double cornerRadius) const
{
    if (hasFocus())
        cuebright::drawFocusRing(painter, rect(), cornerRadius, m_context.colors());
}

} // namespace cuebright
