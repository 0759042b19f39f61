#include "desktop/RunningPanel.h"

namespace cuebright::test {
namespace {

TEST(ScreenReaderUser, HearsTheNamesOfEverythingOnThePanel)
{
    const Home home;
    const RunningPanel panel(home);

    EXPECT_TRUE(panel.shows("CARD 01 / 05"));
    EXPECT_TRUE(panel.shows("Card 1 of 5"));
    EXPECT_TRUE(panel.showsButton("Previous card"));
    EXPECT_TRUE(panel.showsButton("Next card"));
    EXPECT_TRUE(panel.showsButton("Edit card"));
}

TEST(ScreenReaderUser, StepsToTheLastCardAndNoFurther)
{
    const Home home;
    const RunningPanel panel(home);
    panel.press("ctrl+3");
    ASSERT_TRUE(panel.shows("Card 1 of 2"));
    EXPECT_TRUE(panel.hasDisabled("Previous card"));

    EXPECT_TRUE(panel.pressButton("Next card"));

    EXPECT_TRUE(panel.shows("Card 2 of 2"));
    EXPECT_TRUE(panel.hasDisabled("Next card"));
}

TEST(ScreenReaderUser, EditsACardWithoutTheKeyboardShortcuts)
{
    const Home home;
    const RunningPanel panel(home);

    EXPECT_TRUE(panel.pressButton("Edit card"));
    EXPECT_TRUE(panel.showsButton("Cancel editing"));
    EXPECT_TRUE(panel.showsButton("Save card"));
    EXPECT_TRUE(panel.showsNoLonger("Next card"));
    panel.type("heard");
    EXPECT_TRUE(panel.editorHolds("heard"));
    EXPECT_TRUE(panel.pressButton("Save card"));

    EXPECT_TRUE(panel.showsButton("Edit card"));
    EXPECT_TRUE(waitUntil([&] { return readFile(home.stateFile()).find("heard") != std::string::npos; }));
}

} // namespace
} // namespace cuebright::test
