#include "ui/widgets/Icon.h"

#include <QImage>
#include <QPaintDevice>
#include <QPainter>
#include <QSvgRenderer>

#include <array>
#include <cmath>

namespace cuebright {

namespace {

constexpr std::array kFileNames {"arrow-left", "arrow-right", "blockquote-left", "type-bold", "brush", "list-ul",
    "collection-fill", "code-slash", "command", "gear", "hash", "eye-slash-fill", "info-circle", "type-italic",
    "keyboard-fill", "link-45deg", "list-ol", "pause-fill", "play-fill", "exclamation-triangle", "journal-plus"};

static_assert(kFileNames.size() == static_cast<std::size_t>(Icon::Write) + 1, "one file for each icon, in its order");

QString fileOf(Icon icon)
{
    return QStringLiteral(":/icons/%1.svg").arg(QLatin1String(kFileNames[static_cast<std::size_t>(icon)]));
}

} // namespace

void drawIcon(QPainter& painter, Icon icon, const QRectF& rect, const QColor& color)
{
    const double scale = painter.device()->devicePixelRatioF();
    const double side = std::min(rect.width(), rect.height());
    QImage image(QSize(1, 1) * static_cast<int>(std::ceil(side * scale)), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter imagePainter(&image);
        QSvgRenderer(fileOf(icon)).render(&imagePainter, QRectF(QPointF(), QSizeF(image.size())));
        imagePainter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        imagePainter.fillRect(image.rect(), color);
    }
    QRectF target(0, 0, side, side);
    target.moveCenter(rect.center());
    painter.drawImage(target, image);
}

} // namespace cuebright
