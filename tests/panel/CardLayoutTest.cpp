#include "panel/CardLayout.h"

#include "panel/PanelFixture.h"
#include "theme/Fonts.h"
#include "theme/QtColors.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

namespace cuebright::test {

namespace {

constexpr double kFontSize = 17;
constexpr int kWidth = 400;

double lineHeight(const QFont& font) { return QFontMetricsF(font).height(); }

/// The columns and rows between which a colour appears when the card is drawn.
QRect boundsOf(const CardLayout& layout, const Colors& colors, const Color& color)
{
    QImage image(kWidth, 400, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    layout.draw(painter, colors, image.rect());
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == toQColor(color).rgb())
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

} // namespace

class CardLayoutTest : public PanelFixture { };

TEST_F(CardLayoutTest, EveryBlockLeavesItsSpaceBelow)
{
    const double body = lineHeight(systemFont(kFontSize));
    const double heading = lineHeight(serifFont(34, QFont::Bold));
    EXPECT_NEAR(CardLayout({{Block::Kind::Heading, "A"}}, kFontSize, kWidth).height(), heading + 36, 1);
    EXPECT_NEAR(CardLayout({{Block::Kind::Bullet, "A"}}, kFontSize, kWidth).height(), body + 22, 1);
    EXPECT_NEAR(CardLayout({{Block::Kind::Paragraph, "A"}}, kFontSize, kWidth).height(), body + 16, 1);
    EXPECT_NEAR(CardLayout({{Block::Kind::Paragraph, "A"}, {Block::Kind::Paragraph, "B"}}, kFontSize, kWidth).height(),
        2 * (body + 16), 1);
}

TEST_F(CardLayoutTest, LineSpacingStandsBetweenLinesOnly)
{
    const double body = lineHeight(systemFont(kFontSize));
    const CardLayout layout({{Block::Kind::Paragraph, "one\u2028two\u2028three"}}, kFontSize, kWidth);
    EXPECT_NEAR(layout.height(), 3 * body + 2 * 4 + 16, 1.5);
}

TEST_F(CardLayoutTest, BulletsAreSquaresOfSevenAndQuotesHaveABarOfThree)
{
    const auto colors = context.colors();
    const auto bullet = boundsOf(CardLayout({{Block::Kind::Bullet, ""}}, kFontSize, kWidth), colors, colors.accent());
    EXPECT_EQ(bullet.width(), 7);
    EXPECT_NEAR(bullet.height(), 7, 1) << "a baseline between two pixels blurs one edge";
    EXPECT_EQ(bullet.left(), 0);

    const auto text =
        boundsOf(CardLayout({{Block::Kind::Blockquote, "IIII"}}, kFontSize, kWidth), colors, colors.muted());
    EXPECT_GE(text.left(), 3 + 14);
    EXPECT_LE(text.left(), 3 + 14 + 4);
}

TEST_F(CardLayoutTest, ANumberWiderThanItsBoxPushesTheTextRight)
{
    const auto colors = context.colors();
    const auto textLeft = [&](std::int64_t number) {
        const Block block {Block::Kind::NumberedItem, "IIII", number};
        return boundsOf(CardLayout({block}, kFontSize, kWidth), colors, colors.text()).left();
    };
    EXPECT_EQ(textLeft(1), textLeft(2));
    EXPECT_GT(textLeft(100), textLeft(1));
}

TEST_F(CardLayoutTest, SizesThatNoFontHasDoNotBreakIt)
{
    for (const double fontSize : {1e-300, 0.3, 1e308})
        EXPECT_GT(CardLayout({{Block::Kind::Heading, "A b c"}}, fontSize, 10).height(), 0) << fontSize;
}

} // namespace cuebright::test
