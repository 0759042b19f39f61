#include "desktop/RunningPanel.h"

namespace cuebright::test {
namespace {

TEST(DesktopOnboarding, TellsAScreenReaderWhatEachPageSaysUntilItIsFinished)
{
    using Texts = std::vector<const char*>;
    const Texts pages[] = {
        {"Cue cards your audience can't see",
            "Cuebright keeps your talking points floating above every app, invisible to screen sharing."},
        {"Invisible to screen share",
            "This desktop cannot hide a window from a shared screen. "
            "Share a single window or tab instead of the whole screen."},
        {"Quick shortcuts", "Navigate cards"},
        {"Write in markdown", "Switch decks"},
    };
    const Home home(Home::Introduction::NotSeen);
    {
        RunningPanel panel(home);
        ASSERT_TRUE(panel.pressButton("Next page"));
        ASSERT_TRUE(panel.shows("Invisible to screen share"));
        panel.press("ctrl+q"); // left unfinished, it starts over
        ASSERT_EQ(panel.exitStatus(), 0) << panel.console();
    }
    {
        RunningPanel panel(home);
        for (const auto& page : pages) {
            for (const auto* const text : page)
                EXPECT_TRUE(panel.shows(text));
            ASSERT_TRUE(panel.pressButton(&page == std::end(pages) - 1 ? "Get started" : "Next page"));
        }
        EXPECT_TRUE(panel.showsNoLonger("Get started"));
        panel.press("ctrl+q");
        ASSERT_EQ(panel.exitStatus(), 0) << panel.console();
    }
    const RunningPanel panel(home);
    EXPECT_TRUE(panel.shows("Edit card"));
    EXPECT_TRUE(panel.showsNoLonger("Next page"));
}

TEST(DesktopOnboarding, ReturnLeadsThroughItAndIntoTheCard)
{
    const Home home(Home::Introduction::NotSeen);
    const RunningPanel panel(home);
    for (const auto* const title : {"Invisible to screen share", "Quick shortcuts", "Write in markdown"}) {
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
