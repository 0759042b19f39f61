#include "ui/card/CardLayout.h"

#include "platform/qt/QtColors.h"
#include "ui/base/Fonts.h"
#include "ui/card/BlockText.h"
#include "ui/panel/PanelFixture.h"

#include <QBitmap>
#include <QImage>
#include <QPainter>

namespace cuebright::test {

namespace {

constexpr double kFontSize = 17;
constexpr int kWidth = 400;

/// As the toolkit lays lines out, which rounds up what it measures.
double lineHeight(const QFont& font)
{
    QTextLayout layout(QStringLiteral("A"), font);
    layout.beginLayout();
    auto line = layout.createLine();
    line.setLineWidth(kWidth);
    const double height = line.height();
    layout.endLayout();
    return height;
}

/// The columns and rows between which a colour appears, or any other, when the card is drawn.
QRect boundsOf(CardLayout layout, const Color& color, Qt::MaskMode mode = Qt::MaskOutColor)
{
    QImage image(kWidth, 400, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    layout.draw(painter, image.rect());
    const auto mask = image.createMaskFromColor(toQColor(color).rgb(), mode);
    return QRegion(QBitmap::fromImage(mask)).boundingRect();
}

} // namespace

class CardLayoutTest : public PanelFixture {
protected:
    Colors colors = context.colors();

    CardLayout layoutOf(std::vector<Block> blocks, double fontSize = kFontSize, double width = kWidth)
    {
        CardLayout layout(std::move(blocks), fontSize, colors, width);
        layout.layOutThrough(layout.blocks().size() - 1);
        return layout;
    }
};

TEST_F(CardLayoutTest, EveryBlockLeavesItsSpaceBelowAndLineSpacingStandsBetweenLinesOnly)
{
    const double body = lineHeight(systemFont(kFontSize));
    const double heading = lineHeight(serifFont(34, QFont::Bold));
    const Block paragraph {Block::Kind::Paragraph, "A"};
    const std::pair<std::vector<Block>, double> cases[] = {{{{Block::Kind::Heading, "A"}}, heading + 36},
        {{{Block::Kind::Bullet, "A"}}, body + 22}, {{paragraph}, body + 16}, {{paragraph, paragraph}, 2 * (body + 16)},
        {{{Block::Kind::Paragraph, "one\u2028two\u2028three"}}, 3 * body + 2 * 4 + 16}};
    for (const auto& [blocks, height] : cases)
        EXPECT_NEAR(layoutOf(blocks).height(), height, 1) << blocks.size() << blocks[0].text;
}

TEST_F(CardLayoutTest, BulletsAreSquaresOfSevenAndQuotesHaveABarOfThree)
{
    const auto bullet = boundsOf(layoutOf({{Block::Kind::Bullet, ""}}), colors.accent());
    EXPECT_EQ(bullet.width(), 7);
    EXPECT_NEAR(bullet.height(), 7, 1) << "a baseline between two pixels blurs one edge";
    EXPECT_EQ(bullet.left(), 0);

    const auto bar = boundsOf(layoutOf({{Block::Kind::Blockquote, ""}}), {1, 1, 1}, Qt::MaskInColor); // all but white
    EXPECT_EQ(bar.left(), 0);
    EXPECT_EQ(bar.width(), 3);

    const auto text = boundsOf(layoutOf({{Block::Kind::Blockquote, "IIII"}}), colors.muted());
    EXPECT_GE(text.left(), 3 + 14);
    EXPECT_LE(text.left(), 3 + 14 + 4);
}

TEST_F(CardLayoutTest, ANumberWiderThanItsBoxPushesTheTextRight)
{
    const auto textLeft = [&](std::int64_t number) {
        return boundsOf(layoutOf({{Block::Kind::NumberedItem, "IIII", number}}), colors.text()).left();
    };
    EXPECT_EQ(textLeft(1), textLeft(2));
    EXPECT_GT(textLeft(100), textLeft(1));
}

TEST_F(CardLayoutTest, InlineMarkersBecomeLooks)
{
    for (const auto plain : {"plain", "**b**", "`c`"})
        EXPECT_TRUE(boundsOf(layoutOf({{Block::Kind::Paragraph, plain}}), colors.accent()).isEmpty()) << plain;
    for (const auto accented : {"*it*", "[link](target)"})
        EXPECT_FALSE(boundsOf(layoutOf({{Block::Kind::Paragraph, accented}}), colors.accent()).isEmpty()) << accented;
    EXPECT_TRUE(runFormat({.text = "link", .link = "target"}, 17, colors).fontUnderline());
    EXPECT_FALSE(runFormat({.text = "it", .isItalic = true}, 17, colors).fontUnderline());
    EXPECT_EQ(layoutOf({{Block::Kind::Heading, "a **b** `c` [d](e)"}}).blockText(0), QStringLiteral("a b c d"));
}

TEST_F(CardLayoutTest, ALinkIsWhereItsTextIsOnEveryLineThatItCovers)
{
    const auto layout = layoutOf({{Block::Kind::Bullet, "see [one](http://a.b)\u2028and [two\u2028lines](c)"}});
    const auto links = layout.links();
    ASSERT_EQ(links.size(), 3U);
    EXPECT_EQ(links[0].target, "http://a.b");
    EXPECT_EQ(links[0].text, QStringLiteral("one"));
    EXPECT_GT(links[0].rect.left(), 7 + 16);
    EXPECT_EQ(links[2].target, "c");
    EXPECT_GT(links[2].rect.top(), links[1].rect.top());
}

TEST_F(CardLayoutTest, WhatIsNotLookedAtIsOnlyEstimated)
{
    const std::vector<Block> blocks(2000, {Block::Kind::Bullet, "Some words of *one* point"});
    CardLayout layout(blocks, kFontSize, colors, kWidth);
    layout.layOutTo(500);
    EXPECT_FALSE(layout.isComplete());
    EXPECT_EQ(layout.links().size(), 0U);
    const double estimate = layout.height();
    const double exact = layoutOf(blocks).height();
    EXPECT_NEAR(estimate / exact, 1, 0.5);
    layout.layOutThrough(1999);
    EXPECT_TRUE(layout.isComplete());
    EXPECT_DOUBLE_EQ(layout.height(), exact);
}

TEST_F(CardLayoutTest, ALongBlockWrapsAsIfItWereOnePiece)
{
    std::string words;
    while (words.size() < 20'000)
        words += "word " + std::to_string(words.size()) + ' ';
    QTextLayout whole(QString::fromStdString(words), systemFont(kFontSize));
    double height = -4;
    whole.beginLayout();
    for (auto line = whole.createLine(); line.isValid(); line = whole.createLine()) {
        line.setLineWidth(kWidth);
        height += line.height() + 4;
    }
    whole.endLayout();
    EXPECT_NEAR(layoutOf({{Block::Kind::Paragraph, words}}).height(), height + 16, 1);
}

TEST_F(CardLayoutTest, SizesThatNoFontHasDoNotBreakIt)
{
    for (const double fontSize : {1e-300, 0.3, 1e308})
        EXPECT_GT(layoutOf({{Block::Kind::Heading, "A b c"}}, fontSize, 10).height(), 0) << fontSize;
}

} // namespace cuebright::test
