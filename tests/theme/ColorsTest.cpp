#include "theme/Colors.h"

#include <gtest/gtest.h>

#include <vector>

namespace cuebright::test {

namespace {

TEST(Colors, FollowTheLookAndTheContrastOfTheMoment)
{
    const struct {
        const char* name;
        bool isDark;
        bool contrastIncreased;
        std::vector<Color> expected; ///< paper, accent, text, muted, separator
    } cases[] = {
        {"light", false, false,
            {{0.945, 0.925, 0.902}, {0.698, 0.2, 0.118}, {0.153, 0.129, 0.11}, {0.53, 0.49, 0.455},
                {0.82, 0.788, 0.753}}},
        {"dark", true, false,
            {{0.145, 0.133, 0.125}, {0.82, 0.32, 0.22}, {0.91, 0.886, 0.863}, {0.55, 0.51, 0.48}, {0.28, 0.26, 0.24}}},
        {"light with contrast", false, true,
            {{0.945, 0.925, 0.902}, {0.698, 0.2, 0.118}, {0.153, 0.129, 0.11}, {0.3, 0.27, 0.24}, {0.55, 0.52, 0.49}}},
        {"dark with contrast", true, true,
            {{0.145, 0.133, 0.125}, {0.82, 0.32, 0.22}, {0.91, 0.886, 0.863}, {0.75, 0.72, 0.69}, {0.45, 0.42, 0.39}}},
    };
    for (const auto& c : cases) {
        const Colors colors(c.isDark, c.contrastIncreased);
        const std::vector seen {colors.warmBg(), colors.accent(), colors.text(), colors.muted(), colors.sep()};
        EXPECT_EQ(seen, c.expected) << c.name;
        EXPECT_EQ(colors.borderWidth(), c.contrastIncreased ? 2 : 1);
    }
}

} // namespace

} // namespace cuebright::test
