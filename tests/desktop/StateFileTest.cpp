#include "desktop/RunningPanel.h"

namespace cuebright::test {
namespace {

void newCard(const RunningPanel& panel)
{
    follow(panel, {{"ctrl+n", kShows, "Save card"}, {"Escape", kShows, "Edit card"}});
}

TEST(DesktopStateFile, OfAnotherMachineOpensWhereItWasLeft)
{
    const Home home;
    home.keepDeck("Talk", {"# One", R"(# Two \u2014 \ud83c\udfa4)"}, 1);
    const RunningPanel panel(home);
    EXPECT_TRUE(panel.hasTitle("Cuebright — Talk"));
    EXPECT_TRUE(panel.shows("Card 2 of 2"));
    follow(panel, {{"ctrl+e", kEditorHolds, "# Two — 🎤"}});
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

TEST(DesktopStateFile, NonsenseInItAndInThePreferencesNeverBreaksTheStart)
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
    newCard(panel);
    EXPECT_TRUE(waitUntil([&] { return readFile(home.stateFile()).find("New Card") != std::string::npos; }));
    panel.press("ctrl+q");
    EXPECT_EQ(panel.exitStatus(), 0);
    EXPECT_EQ(panel.console(), "");
}

} // namespace
} // namespace cuebright::test
