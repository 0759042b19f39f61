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
    Home::write(home.stateFile(), R"({"opacity":1,"fontSize":17,"activeCardIndex":1,"decks":[{
        "id":"6b0f5c1e-3d0a-4e8b-9d55-2f7a1c9e4b21","name":"Talk","createdAt":"2026-11-16T01:21:19Z",
        "updatedAt":"2026-11-16T01:21:19Z","cards":[
            {"id":"0C8E6A52-9B1F-4C7D-8E2A-5D3B7F1A6C90","content":"# One","createdAt":"2026-11-16T01:21:19Z",
             "updatedAt":"2026-11-16T01:21:19Z"},
            {"id":"0C8E6A52-9B1F-4C7D-8E2A-5D3B7F1A6C91","content":"# Two \u2014 \ud83c\udfa4","createdAt":
             "2026-11-16T01:21:19Z","updatedAt":"2026-11-16T01:21:19Z"}]}]})");
    const RunningPanel panel(home);

    EXPECT_TRUE(panel.hasTitle("Cuebright — Talk"));
    EXPECT_TRUE(panel.shows("Card 2 of 2"));
    panel.press("ctrl+e");
    EXPECT_TRUE(panel.editorHolds("# Two — 🎤"));
}

TEST(DesktopStateFile, FolderThatCannotBeWrittenShowsTheErrorUntilItCan)
{
    const Home home;
    // A file in the place of the folder stops even a user who may write everywhere.
    Home::write(home.stateFolder(), "in the way");
    const RunningPanel panel(home);

    newCard(panel);
    EXPECT_TRUE(panel.shows("Not saved — check disk space"));
    EXPECT_TRUE(panel.console().starts_with("[Cuebright] ERROR: Save failed (1x): ")) << panel.console();

    std::filesystem::remove(home.stateFolder());
    newCard(panel);
    EXPECT_TRUE(panel.showsNoLonger("Not saved — check disk space"));
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
