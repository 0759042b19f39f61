#include "markdown/StyledText.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace cuebright::test {
namespace {

using Runs = std::vector<StyledRun>;

class StyledText : public testing::TestWithParam<bool> {
protected:
    FakeAccessibility m_accessibility;
    Colors m_colors {GetParam(), m_accessibility};
};

TEST_P(StyledText, StrongTextKeepsTheColourOfItsBlock)
{
    const Runs expected {{.text = "a", .isBold = true}, {.text = " b"}};
    EXPECT_EQ(renderInline("**a** b", 20, m_colors), expected);
}

TEST_P(StyledText, EmphasisedTextIsItalicAndAccented)
{
    const Runs expected {{.text = "a", .isItalic = true, .foreground = m_colors.accent()}};
    EXPECT_EQ(renderInline("*a*", 20, m_colors), expected);
}

TEST_P(StyledText, CodeIsMonospacedInTheSizeOfTheBodyOnATint)
{
    const Runs expected {{.text = "a", .monospacedSize = 17.5, .background = m_colors.sep().withAlpha(0.3)}};
    EXPECT_EQ(renderInline("`a`", 17.5, m_colors), expected);
}

TEST_P(StyledText, LinksAreUnderlinedAndAccented)
{
    const Runs expected {
        {.text = "site", .isUnderlined = true, .foreground = m_colors.accent(), .link = "page"},
        {.text = " a@b.c", .isUnderlined = false},
    };
    EXPECT_EQ(renderInline("[site](page) a@b.c", 20, m_colors), expected);
}

TEST_P(StyledText, LooksAddUp)
{
    const Runs expected {{.text = "a",
        .isBold = true,
        .isItalic = true,
        .isUnderlined = true,
        .monospacedSize = 20,
        .foreground = m_colors.accent(),
        .background = m_colors.sep().withAlpha(0.3),
        .link = "b"}};
    EXPECT_EQ(renderInline("***[`a`](b)***", 20, m_colors), expected);
}

TEST_P(StyledText, PlainTextHasNoLooksOfItsOwn)
{
    EXPECT_EQ(renderInline(" a ", 20, m_colors), (Runs {{.text = " a "}}));
    EXPECT_EQ(renderInline("", 20, m_colors), Runs {});
}

INSTANTIATE_TEST_SUITE_P(, StyledText, testing::Bool(), [](const auto& look) { return look.param ? "Dark" : "Light"; });

} // namespace
} // namespace cuebright::test
