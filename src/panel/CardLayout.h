#pragma once

#include "markdown/Block.h"
#include "theme/Colors.h"

#include <QRectF>
#include <QTextLayout>

#include <memory>
#include <optional>
#include <vector>

class QPainter;

namespace cuebright {

/// A card's blocks placed below one another in a given width, ready to be drawn. Pure: it depends on nothing but what
/// it is made from; colours come in when it is drawn.
class CardLayout final {
public:
    /// `fontSize` and `width` in logical pixels.
    CardLayout(const std::vector<Block>& blocks, double fontSize, double width);

    [[nodiscard]] double height() const { return m_height; }
    void draw(QPainter& painter, const Colors& colors, const QRectF& visible) const;

private:
    struct Row {
        Block::Kind kind;
        QRectF rect; ///< without the space below
        std::unique_ptr<QTextLayout> text;
        QPointF textOrigin;
        double baseline = 0; ///< of the text's first line
        std::unique_ptr<QTextLayout> label; ///< a numbered item's number
        QPointF labelOrigin;
    };

    [[nodiscard]] Row makeRow(const Block& block, double top) const;
    void drawRow(QPainter& painter, const Colors& colors, const Row& row) const;

    double m_fontSize;
    double m_width;
    double m_height = 0;
    bool m_isEmptyCard = false;
    std::vector<Row> m_rows;
};

} // namespace cuebright
