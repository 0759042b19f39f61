#include "app/ApplicationIcon.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace cuebright {

namespace {

/// Drawn here, so that it needs none of Qt's image plug-ins, which some systems install separately.
QIcon builtInIcon()
{
    QSvgRenderer renderer(QStringLiteral(":/icons/app.cuebright.Cuebright.svg"));
    QIcon icon;
    for (const int side : {16, 18, 22, 24, 32, 36, 48, 64, 128, 256}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        renderer.render(&painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace

QIcon applicationIcon()
{
    const QIcon installed = QIcon::fromTheme(QStringLiteral("app.cuebright.Cuebright"));
    return installed.isNull() ? builtInIcon() : installed;
}

} // namespace cuebright
