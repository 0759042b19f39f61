#include "markdown/StyledText.h"

#include <gtest/gtest.h>

namespace cuebright::test {
namespace {

using Runs = std::vector<StyledRun>;

TEST(StyledText, EachMarkerGivesItsLooksAndTheyAddUp)
{
    const std::pair<const char*, Runs> cases[] = {
        {"", {}},
        {" a ", {{.text = " a "}}},
        {"**a** b", {{.text = "a", .isBold = true}, {.text = " b"}}},
        {"*a*", {{.text = "a", .isItalic = true, .isAccented = true}}},
        {"`a`", {{.text = "a", .isCode = true}}},
        {"[site](page) a@b.c",
            {{.text = "site", .isUnderlined = true, .isAccented = true, .link = "page"}, {.text = " a@b.c"}}},
        {"***[`a`](b)***",
            {{.text = "a",
                .isBold = true,
                .isItalic = true,
                .isUnderlined = true,
                .isAccented = true,
                .isCode = true,
                .link = "b"}}},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(renderInline(text), expected) << text;
}

} // namespace
} // namespace cuebright::test
