#include "markdown/StyledText.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace cuebright::test {
namespace {

using Runs = std::vector<StyledRun>;

TEST(StyledText, EachMarkerGivesItsLooksAndTheyAddUp)
{
    FakeAccessibility accessibility;
    const Colors colors(true, accessibility);
    const auto accent = colors.accent();
    const auto tint = colors.sep().withAlpha(0.3);
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
        EXPECT_EQ(renderInline(text, 17.5, colors), expected) << text;
}

} // namespace
} // namespace cuebright::test
