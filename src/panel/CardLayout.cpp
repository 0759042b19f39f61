#include "panel/CardLayout.h"

#include "markdown/BlockMetrics.h"
#include "panel/TextConversion.h"
#include "theme/Fonts.h"
#include "theme/QtColors.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace cuebright {

namespace {

constexpr double kBulletSide = 7;
constexpr double kBulletLift = 1;
constexpr double kBulletGap = 16;
constexpr double kNumberMinWidth = 20;
constexpr double kNumberGap = 12;
constexpr double kUnlimitedWidth = 1e6;
constexpr double kBarWidth = 3;
constexpr double kBarRadius = 1.5;
constexpr double kBarOpacity = 0.5;
constexpr double kBarGap = 14;
constexpr double kEmptyCardTop = 8;
constexpr double kEmptyCardOpacity = 0.5;

QFont italic(QFont font)
{
    font.setItalic(true);
    return font;
}

QFont fontOf(Block::Kind kind, double fontSize)
{
    switch (kind) {
    case Block::Kind::Heading:
        return serifFont(headingSize(fontSize), QFont::Bold);
    case Block::Kind::Blockquote:
        return italic(systemFont(fontSize));
    case Block::Kind::Bullet:
    case Block::Kind::NumberedItem:
    case Block::Kind::Paragraph:
        break;
    }
    return systemFont(fontSize);
}

std::unique_ptr<QTextLayout> makeText(const QString& text, const QFont& font)
{
    auto layout = std::make_unique<QTextLayout>(text, font);
    layout->setCacheEnabled(true);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout->setTextOption(option);
    return layout;
}

/// Breaks the text into lines with so much extra space between them; returns its height.
double breakLines(QTextLayout& layout, double width, double lineSpacing)
{
    double y = 0;
    layout.beginLayout();
    for (auto line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max(width, 1.0));
        if (line.lineNumber() > 0)
            y += lineSpacing;
        line.setPosition({0, y});
        y += line.height();
    }
    layout.endLayout();
    return y;
}

} // namespace

CardLayout::CardLayout(const std::vector<Block>& blocks, double fontSize, double width)
    : m_fontSize(fontSize)
    , m_width(width)
    , m_isEmptyCard(blocks.empty())
{
    if (m_isEmptyCard) {
        Row row = makeRow({Block::Kind::Paragraph, "Empty card"}, kEmptyCardTop);
        row.text->setFont(italic(systemFont(fontSize)));
        breakLines(*row.text, width, 0);
        m_height = row.rect.bottom();
        m_rows.push_back(std::move(row));
        return;
    }
    m_rows.reserve(blocks.size());
    for (const auto& block : blocks) {
        m_rows.push_back(makeRow(block, m_height));
        m_height = m_rows.back().rect.bottom() + bottomPadding(block.kind);
    }
}

CardLayout::Row CardLayout::makeRow(const Block& block, double top) const
{
    Row row {.kind = block.kind,
        .rect = {},
        .text = makeText(toQString(block.text), fontOf(block.kind, m_fontSize)),
        .textOrigin = {0, top},
        .baseline = 0,
        .label = nullptr,
        .labelOrigin = {}};
    if (block.kind == Block::Kind::Bullet) {
        row.textOrigin.rx() = kBulletSide + kBulletGap;
    } else if (block.kind == Block::Kind::Blockquote) {
        row.textOrigin.rx() = kBarWidth + kBarGap;
    } else if (block.kind == Block::Kind::NumberedItem) {
        row.label =
            makeText(QString::number(block.number) + QLatin1Char('.'), monospacedFont(m_fontSize, QFont::DemiBold));
        breakLines(*row.label, kUnlimitedWidth, 0);
        const double labelWidth = row.label->lineAt(0).naturalTextWidth();
        const double boxWidth = std::max(labelWidth, kNumberMinWidth);
        row.labelOrigin.rx() = boxWidth - labelWidth;
        row.textOrigin.rx() = boxWidth + kNumberGap;
    }

    const double textHeight = breakLines(*row.text, m_width - row.textOrigin.x(), lineSpacing(block.kind));
    double ascent = row.text->lineAt(0).ascent();
    double height = textHeight;
    if (row.label) {
        // Both stand on one baseline; the taller ascent decides where that is.
        const auto labelLine = row.label->lineAt(0);
        const double lift = std::max(labelLine.ascent() - ascent, 0.0);
        row.textOrigin.ry() += lift;
        ascent += lift;
        row.labelOrigin.ry() = top + ascent - labelLine.ascent();
        height = std::max(textHeight + lift, ascent + labelLine.descent());
    }
    row.baseline = top + ascent;
    row.rect = QRectF(0, top, m_width, height);
    return row;
}

void CardLayout::draw(QPainter& painter, const Colors& colors, const QRectF& visible) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    const auto isAbove = [&](const Row& row) { return row.rect.bottom() < visible.top(); };
    auto row = std::partition_point(m_rows.begin(), m_rows.end(), isAbove);
    for (; row != m_rows.end() && row->rect.top() <= visible.bottom(); ++row)
        drawRow(painter, colors, *row);
}

void CardLayout::drawRow(QPainter& painter, const Colors& colors, const Row& row) const
{
    painter.setPen(Qt::NoPen);
    if (row.kind == Block::Kind::Bullet) {
        painter.fillRect(
            QRectF(0, row.baseline - kBulletSide - kBulletLift, kBulletSide, kBulletSide), toQColor(colors.accent()));
    } else if (row.kind == Block::Kind::Blockquote) {
        painter.setBrush(toQColor(colors.accent().withAlpha(kBarOpacity)));
        painter.drawRoundedRect(QRectF(0, row.rect.top(), kBarWidth, row.rect.height()), kBarRadius, kBarRadius);
        painter.setBrush(Qt::NoBrush);
    } else if (row.label) {
        painter.setPen(toQColor(colors.accent()));
        row.label->draw(&painter, row.labelOrigin);
    }
    const bool isMuted = row.kind == Block::Kind::Blockquote || m_isEmptyCard;
    const auto ink = isMuted ? colors.muted() : colors.text();
    painter.setPen(toQColor(ink.withAlpha(m_isEmptyCard ? kEmptyCardOpacity : 1)));
    row.text->draw(&painter, row.textOrigin);
}

} // namespace cuebright
