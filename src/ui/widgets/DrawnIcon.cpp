#include "ui/widgets/DrawnIcon.h"

#include <QPainter>
#include <QPixmap>

namespace cuebright {

QPixmap DrawnIcon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    paint(&painter, drawn.rect(), mode, state);
    return drawn;
}

} // namespace cuebright
