#include "desktop/RunningPanel.h"

namespace cuebright::test {
namespace {

TEST(DesktopOnboarding, TellsAScreenReaderWhatEachPageSaysUntilReturnHasFinishedIt)
{
    using Texts = std::vector<const char*>;
    const Texts pages[] = {
        {"Cue cards your audience can't see", "Next page",
            "Cuebright keeps your talking points floating above every app, invisible to screen sharing."},
        {"Invisible to screen share", "Next page",
            "This desktop cannot hide a window from a shared screen. "
            "Share a single window or tab instead of the whole screen."},
        {"Quick shortcuts", "Next page", "Navigate cards"},
        {"Write in markdown", "Get started", "Switch decks"},
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
            panel.press("Return");
        }
        follow(panel, {{"", kShowsNoLonger, "Get started"}, {"Right", kShows, "Card 2 of 5"}});
        panel.press("ctrl+q");
        ASSERT_EQ(panel.exitStatus(), 0) << panel.console();
    }
    const RunningPanel panel(home);
    EXPECT_TRUE(panel.shows("Edit card"));
    EXPECT_TRUE(panel.showsNoLonger("Next page"));
}

} // namespace
} // namespace cuebright::test
