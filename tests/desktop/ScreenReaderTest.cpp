#include "desktop/RunningPanel.h"

namespace cuebright::test {
namespace {

TEST(ScreenReaderUser, HearsHintsWhereANameIsNotEnough)
{
    const Home home;
    const RunningPanel panel(home);
    const auto expectHints = [&](const std::vector<std::pair<const char*, const char*>>& hints) {
        for (const auto& [name, hint] : hints)
            EXPECT_TRUE(panel.hints(name, hint));
    };
    expectHints(
        {{"Active deck: Getting Started", "Choose which deck to display"}, {"Previous card", "Or press left arrow"},
            {"Next card", "Or press right arrow"}, {"Edit card", "Press Command E to edit"}});
    EXPECT_TRUE(panel.pressButton("Edit card"));
    expectHints({{"Cancel editing", "Discards changes"}, {"Save card", "Saves changes"}});
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

} // namespace
} // namespace cuebright::test
