#include "desktop/RunningPanel.h"

namespace cuebright::test {
namespace {

TEST(DesktopPanel, FirstStartShowsTheFirstSampleCard)
{
    const Home home;
    const RunningPanel panel(home);
    EXPECT_TRUE(panel.hasTitle("Cuebright — Getting Started"));
    EXPECT_EQ(panel.area().width, 720);
    EXPECT_EQ(panel.area().height, 560);
    EXPECT_TRUE(panel.shows("CARD 01 / 05"));
    EXPECT_TRUE(panel.shows("Card 1 of 5"));
}

TEST(DesktopPanel, EveryKeyOfThePanelWorksWithNumLockAndCapsLockOn)
{
    constexpr auto kShows = &RunningPanel::shows;
    constexpr auto kGone = &RunningPanel::showsNoLonger;
    constexpr auto kTitle = &RunningPanel::hasTitle;
    constexpr auto kEditor = &RunningPanel::editorHolds;
    const struct {
        const char* key;
        testing::AssertionResult (RunningPanel::*seen)(std::string_view) const;
        const char* expected;
    } steps[] = {
        {"Right", kShows, "Card 2 of 5"},
        {"Left", kShows, "Card 1 of 5"},
        {"ctrl+Right", kShows, "Card 2 of 5"},
        {"ctrl+Left", kShows, "Card 1 of 5"},
        {"ctrl+2", kTitle, "Cuebright — Product Demo"},
        {"ctrl+9", kTitle, "Cuebright — Product Demo"}, // no such deck
        {"ctrl+KP_1", kTitle, "Cuebright — Getting Started"},
        {"ctrl+o", kGone, "Overwrite"}, // taken, and nothing
        {"Escape", kShows, "Edit card"},
        {"ctrl+d", kShows, "Delete this card?"},
        {"Escape", kGone, "Delete this card?"},
        {"ctrl+shift+w", kShows, "62w · ~1 min"},

        {"ctrl+e", kEditor, "Cue cards"},
        {"ctrl+o", kShows, "Overwrite"},
        {"ctrl+o", kShows, "Insert"},
        {"1", kEditor, "# 1"},
        {"ctrl+z", kEditor, "# C"},
        {"ctrl+shift+z", kEditor, "# 1"},
        {"ctrl+2", kTitle, "Cuebright — Getting Started"}, // the editor's
        {"ctrl+period", kShows, "Edit card"},
        {"ctrl+Return", kEditor, "# C"}, // what was cancelled is forgotten
        {"2", kEditor, "# 2"},
        {"ctrl+Return", kShows, "Edit card"},
        {"ctrl+e", kEditor, "# 2"},
        {"ctrl+e", kShows, "Edit card"},

        {"ctrl+n", kShows, "Card 6 of 6"},
        {"Escape", kShows, "Edit card"},
        {"ctrl+z", kShows, "Card 5 of 5"},
        {"ctrl+shift+z", kShows, "Card 6 of 6"},
    };
    const Home home;
    home.prefer("cuebrightWordCount", "false");
    const RunningPanel panel(home);
    for (const auto* const lock : {"Num_Lock", "Caps_Lock"})
        panel.press(lock);
    for (const auto& step : steps) {
        panel.press(step.key);
        EXPECT_TRUE((panel.*step.seen)(step.expected)) << "after " << step.key;
    }
    for (const auto* const lock : {"Num_Lock", "Caps_Lock"})
        panel.press(lock);
}

} // namespace
} // namespace cuebright::test
