#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace cuebright {

/// The program's symbols, in the order of the table in the source.
enum class Icon {
    ArrowLeft,
    ArrowRight,
    Blockquote,
    Bold,
    Brush,
    BulletList,
    Cards,
    Code,
    Command,
    Gear,
    Heading,
    HiddenEye,
    InfoCircle,
    Italic,
    Keyboard,
    Link,
    NumberedList,
    Pause,
    Play,
    Warning,
    Write,
};

/// Draws a symbol as large as `rect` allows, in one colour.
void drawIcon(QPainter& painter, Icon icon, const QRectF& rect, const QColor& color);

} // namespace cuebright
