#include "desktop/RunningPanel.h"

namespace cuebright::test {
namespace {

TEST(DesktopPanel, EveryKeyOfThePanelWorksWithNumLockAndCapsLockOn)
{
    const Home home;
    home.prefer("cuebrightWordCount", "false");
    const RunningPanel panel(home);
    panel.press("Num_Lock Caps_Lock");
    const std::vector<Step> steps {
        {"Right", kShows, "Card 2 of 5"},
        {"Left", kShows, "Card 1 of 5"},
        {"ctrl+Right", kShows, "Card 2 of 5"},
        {"ctrl+Left", kShows, "Card 1 of 5"},
        {"ctrl+2", kHasTitle, "Cuebright — Product Demo"},
        {"ctrl+9", kHasTitle, "Cuebright — Product Demo"}, // no such deck
        {"ctrl+KP_1", kHasTitle, "Cuebright — Getting Started"},
        {"ctrl+o", kShowsNoLonger, "Overwrite"}, // ignored
        {"Escape", kShows, "Edit card"},
        {"ctrl+d", kShows, "Delete this card?"},
        {"Escape", kShowsNoLonger, "Delete this card?"},
        {"ctrl+shift+w", kShows, "62w · ~1 min"},

        {"ctrl+e", kEditorHolds, "Cue cards"},
        {"ctrl+o", kShows, "Overwrite"},
        {"ctrl+o", kShows, "Insert"},
        {"1", kEditorHolds, "# 1"},
        {"ctrl+z", kEditorHolds, "# C"},
        {"ctrl+shift+z", kEditorHolds, "# 1"},
        {"ctrl+2", kHasTitle, "Cuebright — Getting Started"}, // the editor handles it
        {"ctrl+period", kShows, "Edit card"},
        {"ctrl+Return", kEditorHolds, "# C"}, // without the cancelled text
        {"2", kEditorHolds, "# 2"},
        {"ctrl+Return", kShows, "Edit card"},
        {"ctrl+e", kEditorHolds, "# 2"},
        {"ctrl+e", kShows, "Edit card"},

        {"ctrl+n", kShows, "Card 6 of 6"},
        {"Escape", kShows, "Edit card"},
        {"ctrl+z", kShows, "Card 5 of 5"},
        {"ctrl+shift+z", kShows, "Card 6 of 6"},
    };
    EXPECT_NO_FATAL_FAILURE(follow(panel, steps));
    panel.press("Num_Lock Caps_Lock");
}

TEST(DesktopPanel, KeysThatCameWhileItWasBusyAllReachWhatTheyWereMeantFor)
{
    const Home home;
    const RunningPanel panel(home);
    const auto whileItIsBusy = [&](std::string_view chords, std::string_view text) {
        panel.send(SIGSTOP);
        panel.press(chords);
        panel.type(text);
        panel.send(SIGCONT);
    };
    whileItIsBusy("Right ctrl+e", "opened");
    EXPECT_TRUE(panel.editorHolds("# opened"));
    whileItIsBusy("ctrl+n", "made");
    EXPECT_TRUE(panel.editorHolds("# made"));
    EXPECT_TRUE(panel.shows("Card 6 of 6"));
}

TEST(DesktopPanel, NonsenseInStateFileAndPreferencesNeverBreaksTheStart)
{
    const Home home;
    Home::write(home.stateFile(), "{ \"activeCardIndex\" : 1, \"decks\" : [");
    Home::write(home.preferencesFile(),
        "[General]\ncuebrightFontSize=nan\ncuebrightOpacity=inf\ncuebrightSpeakingPace=fast\n"
        "cuebrightWordCount=banana\ncuebrightTheme=1e308\ncuebrightOnboardingDone=true\n");
    RunningPanel panel(home);
    EXPECT_TRUE(panel.hasTitle("Cuebright — Getting Started")) << "the sample decks are there";
    EXPECT_TRUE(panel.shows("Card 1 of 5"));
    EXPECT_EQ(std::pair(panel.area().width, panel.area().height), std::pair(720, 560));
    follow(panel, {{"ctrl+n", kShows, "Save card"}, {"Escape", kShows, "Edit card"}});
    EXPECT_TRUE(waitUntil([&] { return readFile(home.stateFile()).find("New Card") != std::string::npos; }));
    panel.press("ctrl+q");
    EXPECT_EQ(panel.exitStatus(), 0);
    EXPECT_EQ(panel.console(), "");
}

} // namespace
} // namespace cuebright::test
