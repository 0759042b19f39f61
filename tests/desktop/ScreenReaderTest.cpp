#include "desktop/RunningPanel.h"

namespace cuebright::test {
namespace {

TEST(ScreenReaderUser, HearsTheNamesOfEverythingOnThePanel)
{
    const Home home;
    const RunningPanel panel(home);

    EXPECT_TRUE(panel.shows("CARD 01 / 05"));
    EXPECT_TRUE(panel.shows("Card 1 of 5"));
    EXPECT_TRUE(panel.shows("Card content"));
    EXPECT_TRUE(panel.shows("Active deck: Getting Started"));
    EXPECT_TRUE(panel.shows("Timer: 00:00"));
    EXPECT_TRUE(panel.showsButton("Start timer"));
    EXPECT_TRUE(panel.showsButton("Previous card"));
    EXPECT_TRUE(panel.showsButton("Next card"));
    EXPECT_TRUE(panel.showsButton("Edit card"));
}

TEST(ScreenReaderUser, HearsHintsWhereTheNameIsNotEnough)
{
    const Home home;
    const RunningPanel panel(home);

    EXPECT_TRUE(panel.hints("Active deck: Getting Started", "Choose which deck to display"));
    EXPECT_TRUE(panel.hints("Edit card", "Press Command E to edit"));
    EXPECT_TRUE(panel.hints("Previous card", "Or press left arrow"));
    EXPECT_TRUE(panel.hints("Next card", "Or press right arrow"));
    EXPECT_TRUE(panel.pressButton("Edit card"));
    EXPECT_TRUE(panel.hints("Cancel editing", "Discards changes"));
    EXPECT_TRUE(panel.hints("Save card", "Saves changes"));
}

TEST(ScreenReaderUser, HearsACardBlockByBlock)
{
    const Home home;
    home.keepDeck("Talk",
        {R"(# The *plan*\n- Open with `a` **story**\n3. Ship *it*\n> Slow is *smooth*\nSee [the board](https://example.org))"});
    const RunningPanel panel(home);

    EXPECT_TRUE(panel.hasRole("The plan", "heading"));
    EXPECT_TRUE(panel.shows("Open with a story"));
    EXPECT_TRUE(panel.shows("3. Ship *it*"));
    EXPECT_TRUE(panel.shows("Quote: Slow is *smooth*"));
    EXPECT_TRUE(panel.shows("See the board"));
    EXPECT_TRUE(panel.hasRole("the board", "link"));
}

TEST(ScreenReaderUser, HearsTheNextCardInThePlaceOfTheLast)
{
    const Home home;
    home.keepDeck("Talk", {R"(# First\n3. Ship it)", R"(\n  )"});
    const RunningPanel panel(home);
    ASSERT_TRUE(panel.shows("3. Ship it"));

    EXPECT_TRUE(panel.pressButton("Next card"));

    EXPECT_TRUE(panel.shows("Empty card"));
    EXPECT_TRUE(panel.showsNoLonger("3. Ship it"));
    EXPECT_TRUE(panel.showsNoLonger("First"));
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
    EXPECT_TRUE(panel.pressButton("Previous card"));
    EXPECT_TRUE(panel.shows("Card 1 of 2"));
}

TEST(ScreenReaderUser, ChoosesADeckFromThePicker)
{
    const Home home;
    const RunningPanel panel(home);

    EXPECT_TRUE(panel.pressButton("Active deck: Getting Started"));
    EXPECT_TRUE(panel.shows("✓  Getting Started"));
    EXPECT_TRUE(panel.pressButton("    Q4 Board Update"));

    EXPECT_TRUE(panel.hasTitle("Cuebright — Q4 Board Update"));
    EXPECT_TRUE(panel.shows("Active deck: Q4 Board Update"));
}

TEST(ScreenReaderUser, StartsAndStopsTheTimer)
{
    const Home home;
    const RunningPanel panel(home);

    EXPECT_TRUE(panel.pressButton("Start timer"));
    EXPECT_TRUE(panel.showsButton("Pause timer"));
    EXPECT_TRUE(panel.shows("Timer: 00:01"));
    EXPECT_TRUE(panel.pressButton("Pause timer"));
    EXPECT_TRUE(panel.showsButton("Start timer"));
}

TEST(ScreenReaderUser, SetsTheTimerFromItsMenu)
{
    const Home home;
    const RunningPanel panel(home);

    EXPECT_TRUE(panel.pressButton("Timer: 00:00"));
    EXPECT_TRUE(panel.pressButton("10 minutes"));
    EXPECT_TRUE(panel.shows("Timer: 10:00"));
    EXPECT_TRUE(panel.pressButton("Timer: 10:00"));
    EXPECT_TRUE(panel.shows("Reset"));
    EXPECT_TRUE(panel.pressButton("Stopwatch"));
    EXPECT_TRUE(panel.shows("Timer: 00:00"));
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

TEST(ScreenReaderUser, FormatsWithTheToolbar)
{
    struct Case {
        const char* button;
        const char* text;
    };
    const Case cases[] = {
        {"Bold (⌘B)", "****word"},
        {"Italic (⌘I)", "**word"},
        {"Heading", "# word"},
        {"Bullet list", "- word"},
        {"Numbered list", "1. word"},
        {"Inline code", "``word"},
        {"Link", "[link text](url)word"},
        {"Blockquote", "> word"},
    };
    const Home home;
    home.keepDeck("Talk", {"word"});
    const RunningPanel panel(home);

    for (const auto& c : cases) {
        ASSERT_TRUE(panel.pressButton("Edit card")) << c.button;
        EXPECT_TRUE(panel.pressButton(c.button));
        EXPECT_TRUE(panel.editorHolds(c.text)) << c.button;
        ASSERT_TRUE(panel.pressButton("Cancel editing")) << c.button;
    }
}

TEST(ScreenReaderUser, DismissesAnError)
{
    const Home home;
    Home::write(home.stateFolder(), "in the way");
    const RunningPanel panel(home);
    EXPECT_TRUE(panel.pressButton("Edit card"));
    EXPECT_TRUE(panel.pressButton("Save card"));
    EXPECT_TRUE(panel.shows("Not saved — check disk space"));

    EXPECT_TRUE(panel.pressButton("Dismiss error"));

    EXPECT_TRUE(panel.showsNoLonger("Not saved — check disk space"));
    EXPECT_TRUE(panel.showsNoLonger("Dismiss error"));
}

} // namespace
} // namespace cuebright::test
