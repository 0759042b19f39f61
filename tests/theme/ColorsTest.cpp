#include "theme/Colors.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <ostream>

namespace cuebright {

static void PrintTo(const Color& color, std::ostream* out)
{
    *out << color.red << " " << color.green << " " << color.blue << " " << color.alpha;
}

namespace test {

namespace {

TEST(Colors, FollowTheLookAndTheContrast)
{
    struct Case {
        const char* name;
        bool isDark;
        bool contrastIncreased;
        Color warmBg;
        Color accent;
        Color text;
        Color muted;
        Color sep;
        double borderWidth;
    };
    const Case cases[] = {
        {"light", false, false, {0.945, 0.925, 0.902}, {0.698, 0.2, 0.118}, {0.153, 0.129, 0.11}, {0.53, 0.49, 0.455},
            {0.82, 0.788, 0.753}, 1},
        {"dark", true, false, {0.145, 0.133, 0.125}, {0.82, 0.32, 0.22}, {0.91, 0.886, 0.863}, {0.55, 0.51, 0.48},
            {0.28, 0.26, 0.24}, 1},
        {"light with contrast", false, true, {0.945, 0.925, 0.902}, {0.698, 0.2, 0.118}, {0.153, 0.129, 0.11},
            {0.3, 0.27, 0.24}, {0.55, 0.52, 0.49}, 2},
        {"dark with contrast", true, true, {0.145, 0.133, 0.125}, {0.82, 0.32, 0.22}, {0.91, 0.886, 0.863},
            {0.75, 0.72, 0.69}, {0.45, 0.42, 0.39}, 2},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        FakeAccessibility accessibility;
        accessibility.contrastIncreased = c.contrastIncreased;
        const Colors colors(c.isDark, accessibility);
        EXPECT_EQ(colors.warmBg(), c.warmBg);
        EXPECT_EQ(colors.accent(), c.accent);
        EXPECT_EQ(colors.text(), c.text);
        EXPECT_EQ(colors.muted(), c.muted);
        EXPECT_EQ(colors.sep(), c.sep);
        EXPECT_EQ(colors.borderWidth(), c.borderWidth);
    }
}

TEST(Colors, AskForTheContrastAtEachReading)
{
    FakeAccessibility accessibility;
    const Colors colors(true, accessibility);
    EXPECT_FALSE(colors.highContrast());
    accessibility.contrastIncreased = true;
    EXPECT_TRUE(colors.highContrast());
    EXPECT_EQ(colors.borderWidth(), 2);
}

} // namespace

} // namespace test

} // namespace cuebright
