#include "ui/card/CardLayout.h"

#include "platform/qt/QtColors.h"
#include "ui/base/Fonts.h"
#include "ui/card/BlockText.h"
#include "ui/panel/PanelFixture.h"

#include <QTextLayout>

namespace cuebright::test {

namespace {

constexpr double kFontSize = 17;
constexpr int kWidth = 400;

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

TEST_F(CardLayoutTest, InlineMarkersBecomeLooks)
{
    const auto isAccented = [&](const StyledRun& run) {
        return runFormat(run, kFontSize, colors).foreground().color() == toQColor(colors.accent());
    };
    EXPECT_TRUE(isAccented({.text = "it", .isItalic = true}));
    EXPECT_TRUE(isAccented({.text = "link", .link = "target"}));
    EXPECT_FALSE(isAccented({.text = "plain"}) || isAccented({.text = "b", .isBold = true}));
    EXPECT_TRUE(runFormat({.text = "link", .link = "target"}, kFontSize, colors).fontUnderline());
    EXPECT_FALSE(runFormat({.text = "it", .isItalic = true}, kFontSize, colors).fontUnderline());
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
