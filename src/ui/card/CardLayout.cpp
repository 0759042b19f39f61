#include "ui/card/CardLayout.h"

#include "markdown/BlockMetrics.h"
#include "platform/qt/QtColors.h"
#include "ui/base/Fonts.h"
#include "ui/card/BlockText.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace cuebright {

namespace {

constexpr double kBulletSide = 7;
constexpr double kBulletLift = 1;
constexpr double kBulletGap = 16;
constexpr double kNumberMinWidth = 20;
constexpr double kNumberGap = 12;
constexpr double kBarWidth = 3;
constexpr double kBarRadius = 1.5;
constexpr double kBarOpacity = 0.5;
constexpr double kBarGap = 14;
constexpr double kEmptyCardTop = 8;
constexpr double kEmptyCardOpacity = 0.5;
constexpr double kUnlimitedWidth = 1e6;
constexpr int kLongestPiece = 4096; ///< UTF-16 units; breaking lines takes more than linear time

/// The end of the piece that starts at `start`, never inside a surrogate pair.
int pieceEnd(const QString& text, int start)
{
    const auto end = std::min(start + kLongestPiece, static_cast<int>(text.size()));
    return end < text.size() && text[end].isLowSurrogate() ? end - 1 : end;
}

} // namespace

CardLayout::CardLayout(std::vector<Block> blocks, double fontSize, const Colors& colors, double width)
    : m_blocks(std::move(blocks))
    , m_fontSize(fontSize)
    , m_colors(colors)
    , m_isEmptyCard(m_blocks.empty())
{
    if (m_isEmptyCard)
        m_blocks.push_back({Block::Kind::Paragraph, "Empty card"});
    setWidth(width);
}

void CardLayout::setWidth(double width)
{
    m_width = width;
    m_bottom = m_isEmptyCard ? kEmptyCardTop : 0;
    m_nextBlock = 0;
    m_open = {};
    m_pieces.clear();
    m_estimatedRest = 0;
    for (const auto& block : m_blocks)
        m_estimatedRest += estimatedHeight(block);
}

double CardLayout::estimatedHeight(const Block& block) const
{
    const double wanted = block.kind == Block::Kind::Heading ? headingSize(m_fontSize) : m_fontSize;
    const double size = drawnSize(wanted);
    const double letterWidth = size * 0.5;
    const double lineHeight = size * 1.2 + lineSpacing(block.kind);
    const double lines = std::ceil(static_cast<double>(block.text.size()) * letterWidth / std::max(m_width, 1.0));
    return std::max(lines, 1.0) * lineHeight + bottomPadding(block.kind);
}

void CardLayout::layOutTo(double y)
{
    while (m_nextBlock < m_blocks.size() && m_bottom <= y)
        layOutPiece();
}

void CardLayout::layOutFor(std::chrono::microseconds time)
{
    const auto end = std::chrono::steady_clock::now() + time;
    while (m_nextBlock < m_blocks.size() && std::chrono::steady_clock::now() < end)
        layOutPiece();
}

void CardLayout::openBlock(const Block& block)
{
    for (const auto& run : renderInline(block.text)) {
        const auto text = displayText(run.text);
        const auto start = static_cast<int>(m_open.text.size());
        const auto length = static_cast<int>(text.size());
        m_open.formats.push_back({start, length, runFormat(run, m_fontSize, m_colors)});
        if (run.link)
            m_open.links.push_back({start, length, *run.link});
        m_open.text += text;
    }
}

void CardLayout::layOutPiece()
{
    const auto& block = m_blocks[m_nextBlock];
    const bool isFirst = m_open.start == 0;
    if (isFirst)
        openBlock(block);

    const int start = m_open.start;
    const int end = pieceEnd(m_open.text, start);
    const bool isLast = end == m_open.text.size();
    Piece piece {};
    piece.block = m_nextBlock;
    piece.isFirst = isFirst;
    piece.top = m_bottom;
    const auto font = m_isEmptyCard ? italic(systemFont(m_fontSize)) : blockFont(block.kind, m_fontSize);
    piece.text = makeText(m_open.text.mid(start, end - start), font);
    QList<QTextLayout::FormatRange> formats;
    for (const auto& format : m_open.formats) {
        const int from = std::max(format.start, start);
        const int to = std::min(format.start + format.length, end);
        if (from < to)
            formats.push_back({from - start, to - from, format.format});
    }
    piece.text->setFormats(formats);
    piece.origin = {textIndent(piece), piece.top};
    breakLines(*piece.text, m_width - piece.origin.x(), lineSpacing(block.kind));

    // The last line may be incomplete, so the next piece begins with it.
    piece.lineCount = isLast ? piece.text->lineCount() : std::max(piece.text->lineCount() - 1, 1);
    const auto lastLine = piece.text->lineAt(piece.lineCount - 1);
    m_open.start = start + lastLine.textStart() + lastLine.textLength();
    placeBaselines(piece);
    addLinks(piece, start, m_open.start - start);

    if (!isLast)
        piece.bottom += lineSpacing(block.kind); // leaves no gap in a quote's bar
    m_bottom = piece.bottom;
    m_pieces.push_back(std::move(piece));
    if (isLast)
        closeBlock(block);
}

void CardLayout::closeBlock(const Block& block)
{
    m_bottom += m_isEmptyCard ? 0 : bottomPadding(block.kind);
    m_estimatedRest -= estimatedHeight(block);
    m_open = {};
    ++m_nextBlock;
    if (m_nextBlock == m_blocks.size())
        m_estimatedRest = 0; // without rounding errors
}

/// The text's distance from the left edge. Also makes a numbered item's label.
double CardLayout::textIndent(Piece& piece) const
{
    const auto& block = m_blocks[piece.block];
    switch (block.kind) {
    case Block::Kind::Bullet:
        return kBulletSide + kBulletGap;
    case Block::Kind::Blockquote:
        return kBarWidth + kBarGap;
    case Block::Kind::NumberedItem: {
        piece.label =
            makeText(QString::number(block.number) + QLatin1Char('.'), monospacedFont(m_fontSize, QFont::DemiBold));
        breakLines(*piece.label, kUnlimitedWidth, 0);
        const double labelWidth = piece.label->lineAt(0).naturalTextWidth();
        const double boxWidth = std::max(labelWidth, kNumberMinWidth);
        piece.labelOrigin.rx() = boxWidth - labelWidth;
        if (!piece.isFirst)
            piece.label.reset();
        return boxWidth + kNumberGap;
    }
    case Block::Kind::Heading:
    case Block::Kind::Paragraph:
        break;
    }
    return 0;
}

/// Puts label and text on one baseline, given by the taller ascent.
void CardLayout::placeBaselines(Piece& piece) const
{
    const double ascent = piece.text->lineAt(0).ascent();
    piece.bottom = piece.top + bottomOfLine(*piece.text, piece.lineCount - 1);
    piece.baseline = piece.top + ascent;
    if (!piece.label)
        return;
    const auto labelLine = piece.label->lineAt(0);
    const double lift = std::max(labelLine.ascent() - ascent, 0.0);
    piece.origin.ry() += lift;
    piece.baseline += lift;
    piece.labelOrigin.ry() = piece.baseline - labelLine.ascent();
    piece.bottom = std::max(piece.bottom + lift, piece.baseline + labelLine.descent());
}

void CardLayout::addLinks(Piece& piece, int start, int length) const
{
    for (const auto& link : m_open.links) {
        const int from = std::max(link.start, start);
        const int to = std::min(link.start + link.length, start + length);
        if (from < to)
            piece.links.push_back({from - start, to - from, link.target});
    }
}

void CardLayout::draw(QPainter& painter, const QRectF& visible)
{
    layOutTo(visible.bottom());
    painter.setRenderHint(QPainter::Antialiasing);
    for (auto piece = firstPieceDownFrom(visible.top()); piece != m_pieces.end() && piece->top <= visible.bottom();
         ++piece) {
        drawMarker(painter, *piece);
        const bool isMuted = m_isEmptyCard || m_blocks[piece->block].kind == Block::Kind::Blockquote;
        const auto color = isMuted ? m_colors.muted() : m_colors.text();
        painter.setPen(toQColor(color.withAlpha(m_isEmptyCard ? kEmptyCardOpacity : 1)));
        piece->text->setCacheEnabled(true); // visible text is drawn often
        for (int i = 0; i < piece->lineCount; ++i) {
            const auto line = piece->text->lineAt(i);
            const double lineTop = piece->origin.y() + line.y();
            if (lineTop <= visible.bottom() && lineTop + line.height() >= visible.top())
                line.draw(&painter, piece->origin);
        }
    }
}

void CardLayout::drawMarker(QPainter& painter, const Piece& piece) const
{
    const auto kind = m_blocks[piece.block].kind;
    if (kind == Block::Kind::Blockquote) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(toQColor(m_colors.accent().withAlpha(kBarOpacity)));
        painter.drawRoundedRect(QRectF(0, piece.top, kBarWidth, piece.bottom - piece.top), kBarRadius, kBarRadius);
        painter.setBrush(Qt::NoBrush);
    } else if (kind == Block::Kind::Bullet && piece.isFirst) {
        painter.fillRect(QRectF(0, piece.baseline - kBulletSide - kBulletLift, kBulletSide, kBulletSide),
            toQColor(m_colors.accent()));
    } else if (piece.label) {
        painter.setPen(toQColor(m_colors.accent()));
        piece.label->draw(&painter, piece.labelOrigin);
    }
}

void CardLayout::layOutThrough(std::size_t block)
{
    while (m_nextBlock <= block && m_nextBlock < m_blocks.size())
        layOutPiece();
}

std::vector<CardLayout::Piece>::const_iterator CardLayout::firstPieceOf(std::size_t block) const
{
    return std::partition_point(
        m_pieces.begin(), m_pieces.end(), [block](const Piece& piece) { return piece.block < block; });
}

std::vector<CardLayout::Piece>::const_iterator CardLayout::firstPieceDownFrom(double y) const
{
    return std::partition_point(m_pieces.begin(), m_pieces.end(), [y](const Piece& piece) { return piece.bottom < y; });
}

QRectF CardLayout::blockRect(std::size_t block)
{
    layOutThrough(block);
    QRectF rect;
    for (auto piece = firstPieceOf(block); piece != m_pieces.end() && piece->block == block; ++piece)
        rect |= QRectF(0, piece->top, m_width, piece->bottom - piece->top);
    return rect;
}

QString CardLayout::blockText(std::size_t block) const
{
    QString text;
    for (const auto& run : renderInline(m_blocks[block].text))
        text += displayText(run.text);
    return text;
}

std::vector<CardLayout::Link> CardLayout::links() const
{
    std::vector<Link> places;
    for (const auto& piece : m_pieces)
        appendLinks(piece, places);
    return places;
}

std::vector<CardLayout::Link> CardLayout::linksIn(std::size_t block)
{
    layOutThrough(block);
    std::vector<Link> places;
    for (auto piece = firstPieceOf(block); piece != m_pieces.end() && piece->block == block; ++piece)
        appendLinks(*piece, places);
    return places;
}

std::optional<std::string> CardLayout::linkAt(const QPointF& place) const
{
    const auto piece = firstPieceDownFrom(place.y());
    if (piece == m_pieces.end())
        return std::nullopt;
    std::vector<Link> places;
    appendLinks(*piece, places);
    const auto link =
        std::ranges::find_if(places, [&](const Link& candidate) { return candidate.rect.contains(place); });
    return link == places.end() ? std::nullopt : std::optional(link->target);
}

void CardLayout::appendLinks(const Piece& piece, std::vector<Link>& places)
{
    for (const auto& link : piece.links) {
        for (int i = 0; i < piece.lineCount; ++i) {
            const auto line = piece.text->lineAt(i);
            const int from = std::max(link.start, line.textStart());
            const int to = std::min(link.start + link.length, line.textStart() + line.textLength());
            if (from >= to)
                continue;
            const double left = line.cursorToX(from);
            const double right = line.cursorToX(to);
            const QRectF rect(std::min(left, right), line.y(), std::abs(right - left), line.height());
            places.push_back(
                {link.target, piece.text->text().mid(from, to - from), piece.block, rect.translated(piece.origin)});
        }
    }
}

} // namespace cuebright
