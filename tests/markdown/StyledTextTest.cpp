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

TEST_P(StyledText, EachMarkerGivesItsLooksAndTheyAddUp)
{
    const auto accent = m_colors.accent();
    const auto tint = m_colors.sep().withAlpha(0.3);
    const std::pair<const char*, Runs> cases[] = {
        {"", {}},
        {" a ", {{.text = " a "}}},
        {"**a** b", {{.text = "a", .isBold = true}, {.text = " b"}}},
        {"*a*", {{.text = "a", .isItalic = true, .foreground = accent}}},
        {"`a`", {{.text = "a", .monospacedSize = 17.5, .background = tint}}},
        {"[site](page) a@b.c",
            {{.text = "site", .isUnderlined = true, .foreground = accent, .link = "page"}, {.text = " a@b.c"}}},
        {"***[`a`](b)***",
            {{.text = "a",
                .isBold = true,
                .isItalic = true,
                .isUnderlined = true,
                .monospacedSize = 17.5,
                .foreground = accent,
                .background = tint,
                .link = "b"}}},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(renderInline(text, 17.5, m_colors), expected) << text;
}

INSTANTIATE_TEST_SUITE_P(
    Looks, StyledText, testing::Bool(), [](const auto& look) { return look.param ? "Dark" : "Light"; });

} // namespace
} // namespace cuebright::test
