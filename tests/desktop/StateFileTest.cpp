#include "desktop/RunningPanel.h"

namespace cuebright::test {
namespace {

void newCard(const RunningPanel& panel)
{
    panel.press("ctrl+n");
    ASSERT_TRUE(panel.showsButton("Save card"));
    panel.press("Escape");
    ASSERT_TRUE(panel.showsButton("Edit card"));
}

TEST(DesktopStateFile, DamagedOneGivesWayToTheSampleDecksWithoutAWord)
{
    const Home home;
    Home::write(home.stateFile(), "{ \"activeCardIndex\" : 1, \"decks\" : [");
    RunningPanel panel(home);

    EXPECT_TRUE(panel.hasTitle("Cuebright — Getting Started"));
    EXPECT_TRUE(panel.shows("Card 1 of 5"));
    panel.press("ctrl+q");
    EXPECT_EQ(panel.exitStatus(), 0);
    EXPECT_EQ(panel.console(), "");
}

TEST(DesktopStateFile, OfAnotherMachineOpensWhereItWasLeft)
{
    const Home home;
    home.keepDeck("Talk", {"# One", R"(# Two \u2014 \ud83c\udfa4)"}, 1);
    const RunningPanel panel(home);
    EXPECT_TRUE(panel.hasTitle("Cuebright — Talk"));
    EXPECT_TRUE(panel.shows("Card 2 of 2"));
    panel.press("ctrl+e");
    EXPECT_TRUE(panel.editorHolds("# Two — 🎤"));
}

TEST(DesktopStateFile, FolderThatCannotBeWrittenShowsTheErrorUntilItIsDismissedOrItCan)
{
    const Home home;
    // A file in the place of the folder stops even a user who may write everywhere.
    Home::write(home.stateFolder(), "in the way");
    const RunningPanel panel(home);
    constexpr const char* kError = "Not saved — check disk space";
    newCard(panel);
    EXPECT_TRUE(panel.shows(kError));
    EXPECT_TRUE(panel.console().starts_with("[Cuebright] ERROR: Save failed (1x): ")) << panel.console();
    EXPECT_TRUE(panel.pressButton("Dismiss error"));
    EXPECT_TRUE(panel.showsNoLonger(kError));
    EXPECT_TRUE(panel.showsNoLonger("Dismiss error"));
    newCard(panel);
    EXPECT_TRUE(panel.shows(kError));

    std::filesystem::remove(home.stateFolder());
    newCard(panel);
    EXPECT_TRUE(panel.showsNoLonger(kError));
    EXPECT_NE(readFile(home.stateFile()).find("New Card"), std::string::npos);
}

TEST(DesktopPreferences, NonsenseNeverBreaksTheStart)
{
    const Home home;
    Home::write(home.preferencesFile(),
        "[General]\ncuebrightFontSize=nan\ncuebrightOpacity=inf\ncuebrightSpeakingPace=fast\n"
        "cuebrightWordCount=banana\ncuebrightTheme=1e308\ncuebrightOnboardingDone=true\n");
    RunningPanel panel(home);

    EXPECT_TRUE(panel.shows("Card 1 of 5"));
    newCard(panel);
    EXPECT_TRUE(waitUntil([&] { return !readFile(home.stateFile()).empty(); }));
    panel.press("ctrl+q");
    EXPECT_EQ(panel.exitStatus(), 0);
    EXPECT_EQ(panel.console(), "");
}

} // namespace
} // namespace cuebright::test
