#include "desktop/RunningPanel.h"

namespace cuebright::test {
namespace {

void finish(const RunningPanel& panel)
{
    for (const auto next : {"Invisible to screen share", "Quick shortcuts", "Write in markdown"}) {
        ASSERT_TRUE(panel.pressButton("Next page"));
        ASSERT_TRUE(panel.shows(next));
    }
    ASSERT_TRUE(panel.pressButton("Get started"));
    ASSERT_TRUE(panel.showsNoLonger("Get started"));
}

TEST(DesktopOnboarding, TellsAScreenReaderWhatEachPageSays)
{
    const Home home(Home::Introduction::NotSeen);
    const RunningPanel panel(home);

    EXPECT_TRUE(panel.shows("Cue cards your audience can't see"));
    EXPECT_TRUE(
        panel.shows("Cuebright keeps your talking points floating above every app, invisible to screen sharing."));
    EXPECT_TRUE(panel.pressButton("Next page"));
    EXPECT_TRUE(panel.shows("Invisible to screen share"));
    EXPECT_TRUE(panel.shows("This desktop cannot hide a window from a shared screen. "
                            "Share a single window or tab instead of the whole screen."));
    EXPECT_TRUE(panel.pressButton("Next page"));
    EXPECT_TRUE(panel.shows("Quick shortcuts"));
    EXPECT_TRUE(panel.shows("Navigate cards"));
    EXPECT_TRUE(panel.pressButton("Next page"));
    EXPECT_TRUE(panel.shows("Write in markdown"));
    EXPECT_TRUE(panel.shows("Switch decks"));
    EXPECT_TRUE(panel.showsButton("Get started"));
    EXPECT_TRUE(panel.showsNoLonger("Next page"));
}

TEST(DesktopOnboarding, NeverComesBackOnceItIsFinished)
{
    const Home home(Home::Introduction::NotSeen);
    {
        RunningPanel panel(home);
        finish(panel);
        panel.press("ctrl+q");
        ASSERT_EQ(panel.exitStatus(), 0) << panel.console();
    }
    EXPECT_NE(readFile(home.preferencesFile()).find("cuebrightOnboardingDone=true"), std::string::npos);

    const RunningPanel panel(home);
    EXPECT_TRUE(panel.shows("Edit card"));
    EXPECT_TRUE(panel.showsNoLonger("Next page"));
}

TEST(DesktopOnboarding, StartsOverWhenItWasLeftUnfinished)
{
    const Home home(Home::Introduction::NotSeen);
    {
        RunningPanel panel(home);
        ASSERT_TRUE(panel.pressButton("Next page"));
        ASSERT_TRUE(panel.shows("Invisible to screen share"));
        panel.press("ctrl+q");
        ASSERT_EQ(panel.exitStatus(), 0) << panel.console();
    }

    const RunningPanel panel(home);
    EXPECT_TRUE(panel.shows("Cue cards your audience can't see"));
}

TEST(DesktopOnboarding, ReturnLeadsThroughItAndIntoTheCard)
{
    const Home home(Home::Introduction::NotSeen);
    const RunningPanel panel(home);

    for (const auto title : {"Invisible to screen share", "Quick shortcuts", "Write in markdown"}) {
        panel.press("Return");
        ASSERT_TRUE(panel.shows(title));
    }
    panel.press("Return");
    ASSERT_TRUE(panel.showsNoLonger("Get started"));
    panel.press("Right");
    EXPECT_TRUE(panel.shows("Card 2 of 5"));
}

} // namespace
} // namespace cuebright::test
