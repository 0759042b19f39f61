#include "desktop/RunningPanel.h"

namespace cuebright::test {
namespace {

TEST(ScreenReaderUser, HearsTheNamesOfEverythingOnThePanelAndHintsWhereTheyAreNotEnough)
{
    const Home home;
    const RunningPanel panel(home);
    for (const auto* const name : {"CARD 01 / 05", "Card 1 of 5", "Card content", "Timer: 00:00"})
        EXPECT_TRUE(panel.shows(name));
    EXPECT_TRUE(panel.showsButton("Start timer"));
    EXPECT_TRUE(panel.hints("Active deck: Getting Started", "Choose which deck to display"));
    const auto expectButtons = [&](const std::vector<std::pair<const char*, const char*>>& buttons) {
        for (const auto& [name, hint] : buttons) {
            EXPECT_TRUE(panel.showsButton(name));
            EXPECT_TRUE(panel.hints(name, hint));
        }
    };
    expectButtons({{"Previous card", "Or press left arrow"}, {"Next card", "Or press right arrow"},
        {"Edit card", "Press Command E to edit"}});
    EXPECT_TRUE(panel.pressButton("Edit card"));
    expectButtons({{"Cancel editing", "Discards changes"}, {"Save card", "Saves changes"}});
}

TEST(ScreenReaderUser, HearsACardBlockByBlockAndThenTheNextInItsPlace)
{
    const Home home;
    home.keepDeck("Talk",
        {R"(# The *plan*\n- Open with `a` **story**\n3. Ship *it*\n> Slow is *smooth*\nSee [the board](https://example.org))",
            R"(\n  )"});
    const RunningPanel panel(home);
    EXPECT_TRUE(panel.hasRole("The plan", "heading"));
    EXPECT_TRUE(panel.hasRole("the board", "link"));
    const auto blocks = {"Open with a story", "3. Ship *it*", "Quote: Slow is *smooth*", "See the board"};
    for (const auto* const block : blocks)
        EXPECT_TRUE(panel.shows(block));

    EXPECT_TRUE(panel.pressButton("Next card"));
    EXPECT_TRUE(panel.shows("Empty card"));
    for (const auto* const block : blocks)
        EXPECT_TRUE(panel.showsNoLonger(block));
}

TEST(ScreenReaderUser, ChoosesADeckStepsToItsLastCardAndNoFurtherAndSetsTheTimer)
{
    const Home home;
    const RunningPanel panel(home);
    EXPECT_TRUE(panel.pressButton("Active deck: Getting Started"));
    EXPECT_TRUE(panel.shows("✓  Getting Started"));
    EXPECT_TRUE(panel.pressButton("    Q4 Board Update"));
    EXPECT_TRUE(panel.hasTitle("Cuebright — Q4 Board Update"));
    EXPECT_TRUE(panel.shows("Active deck: Q4 Board Update"));
    EXPECT_TRUE(panel.shows("Card 1 of 2"));
    EXPECT_TRUE(panel.hasDisabled("Previous card"));
    EXPECT_TRUE(panel.pressButton("Next card"));
    EXPECT_TRUE(panel.shows("Card 2 of 2"));
    EXPECT_TRUE(panel.hasDisabled("Next card"));
    EXPECT_TRUE(panel.pressButton("Previous card"));
    EXPECT_TRUE(panel.shows("Card 1 of 2"));

    for (const auto* const button : {"Timer: 00:00", "10 minutes", "Timer: 10:00"})
        EXPECT_TRUE(panel.pressButton(button));
    EXPECT_TRUE(panel.shows("Reset"));
    EXPECT_TRUE(panel.pressButton("Stopwatch"));
    EXPECT_TRUE(panel.shows("Timer: 00:00"));
    EXPECT_TRUE(panel.pressButton("Start timer"));
    EXPECT_TRUE(panel.shows("Timer: 00:01"));
    EXPECT_TRUE(panel.pressButton("Pause timer"));
    EXPECT_TRUE(panel.showsButton("Start timer"));
}

TEST(ScreenReaderUser, EditsAndFormatsACardWithoutTheKeyboardShortcuts)
{
    const Home home;
    home.keepDeck("Talk", {"word"});
    const RunningPanel panel(home);
    EXPECT_TRUE(panel.pressButton("Edit card"));
    EXPECT_TRUE(panel.showsNoLonger("Next card"));
    EXPECT_TRUE(panel.pressButton("Bold (⌘B)"));
    EXPECT_TRUE(panel.editorHolds("****word"));
    EXPECT_TRUE(panel.pressButton("Cancel editing"));

    EXPECT_TRUE(panel.pressButton("Edit card"));
    EXPECT_TRUE(panel.pressButton("Bullet list"));
    EXPECT_TRUE(panel.editorHolds("- word"));
    panel.type("heard ");
    EXPECT_TRUE(panel.editorHolds("- heard word"));
    EXPECT_TRUE(panel.pressButton("Save card"));
    EXPECT_TRUE(panel.showsButton("Edit card"));
    EXPECT_TRUE(waitUntil([&] { return readFile(home.stateFile()).find("- heard word") != std::string::npos; }));
}

} // namespace
} // namespace cuebright::test
