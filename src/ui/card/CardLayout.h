#pragma once

#include "markdown/Block.h"
#include "markdown/InlineParser.h"
#include "theme/Colors.h"

#include <QPointF>
#include <QRectF>
#include <QString>
#include <QTextLayout>

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QPainter;

namespace cuebright {

/// A card's blocks below one another in a given width, ready to be drawn.
///
/// Text is laid out from the top as far as it is needed, and the height of the rest is estimated, so that a card of any
/// length opens immediately; long blocks are laid out in pieces. Coordinates are logical pixels from the card's top
/// left corner.
class CardLayout final {
public:
    /// A rectangle to click or to focus. A wrapped link is several of these, one on each line.
    struct Link {
        std::string target; ///< as written
        QString text;
        std::size_t block;
        QRectF rect;
    };

    CardLayout(std::vector<Block> blocks, double fontSize, const Colors& colors, double width);

    [[nodiscard]] const std::vector<Block>& blocks() const { return m_blocks; }
    [[nodiscard]] double width() const { return m_width; }
    /// Starts the layout again in this width.
    void setWidth(double width);
    /// An estimate until the layout is complete.
    [[nodiscard]] double height() const { return m_bottom + m_estimatedRest; }
    [[nodiscard]] bool isComplete() const { return m_nextBlock == m_blocks.size(); }

    /// Lays out everything that starts above `y`.
    void layOutTo(double y);
    void layOutThrough(std::size_t block);
    /// Continues the layout for about `time`.
    void layOutFor(std::chrono::microseconds time);

    /// Draws what lies in `visible`, laying it out where needed.
    void draw(QPainter& painter, const QRectF& visible);

    /// Without the space below the block. Lays it out where needed.
    [[nodiscard]] QRectF blockRect(std::size_t block);
    /// A block's text without its markers.
    [[nodiscard]] QString blockText(std::size_t block) const;
    /// From the top, as far as the card is laid out.
    [[nodiscard]] std::vector<Link> links() const;
    [[nodiscard]] std::vector<Link> linksIn(std::size_t block);
    [[nodiscard]] std::optional<std::string> linkAt(const QPointF& place) const;

private:
    struct LinkRange {
        int start; ///< in the piece's text
        int length;
        std::string target;
    };
    /// Consecutive lines of one block.
    struct Piece {
        std::size_t block;
        QPointF origin; ///< of the text
        double top;
        double bottom; ///< without the space below the block
        double baseline; ///< of the first line
        int lineCount; ///< `text` may hold one extra line; it is laid out again as the first of the next piece
        bool isFirst;
        std::unique_ptr<QTextLayout> text;
        std::unique_ptr<QTextLayout> label; ///< a numbered item's number
        QPointF labelOrigin;
        std::vector<LinkRange> links;
    };
    /// The block that is being laid out.
    struct OpenBlock {
        QString text;
        QList<QTextLayout::FormatRange> formats;
        std::vector<LinkRange> links; ///< in the block's text
        int start = 0; ///< of the next piece
    };

    [[nodiscard]] double estimatedHeight(const Block& block) const;
    [[nodiscard]] double textIndent(Piece& piece) const;
    void openBlock(const Block& block);
    void layOutPiece();
    void closeBlock(const Block& block);
    void placeBaselines(Piece& piece) const;
    void addLinks(Piece& piece, int start, int length) const;
    [[nodiscard]] std::vector<Piece>::const_iterator firstPieceOf(std::size_t block) const;
    [[nodiscard]] std::vector<Piece>::const_iterator firstPieceDownFrom(double y) const;
    static void appendLinks(const Piece& piece, std::vector<Link>& places);
    void drawMarker(QPainter& painter, const Piece& piece) const;

    std::vector<Block> m_blocks;
    double m_fontSize;
    Colors m_colors;
    double m_width;
    bool m_isEmptyCard;
    double m_bottom = 0; ///< of what is laid out
    double m_estimatedRest = 0;
    std::size_t m_nextBlock = 0;
    OpenBlock m_open;
    std::vector<Piece> m_pieces;
};

} // namespace cuebright
