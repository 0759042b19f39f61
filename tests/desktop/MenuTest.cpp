#include "desktop/RunningPanel.h"

#include <csignal>

namespace cuebright::test {
namespace {

constexpr int kDark = 60;

TEST(DesktopMenus, WorkByKeyboardAloneIsKeptForTheNextStart)
{
    const Home home;
    {
        RunningPanel panel(home);
        ASSERT_TRUE(panel.shows("File"));
        // The arrow keys skip separators and disabled items.
        follow(panel,
            {
                {"alt+f Down Down Return", kHasTitle, "Cuebright — New Deck"}, // New Deck
                {"alt+f Down Down Down Return", kShows, "Rename Deck"}, // Delete Card is disabled
                {"t a l k Return", kHasTitle, "Cuebright — talk"},
                {"alt+f Return", kEditorHolds, "# "}, // New Card
                {"f i r s t space w o r d s", kEditorHolds, "first words"},
                {"alt+e Down Return", kShows, "Card 2 of 2"}, // Save Card: Redo is disabled
                {"alt+d Return", kShows, "Card 1 of 2"}, // Move Card Up
                {"Right", kShows, "Card 2 of 2"},
            });
        panel.press("alt+v Return Down Down Return"); // Appearance, Dark
        ASSERT_TRUE(panel.hasBrightness(0, kDark));
        panel.press("alt+c Up Return"); // Quit Cuebright
        ASSERT_EQ(panel.exitStatus(), 0) << panel.console();
    }
    const RunningPanel panel(home);
    EXPECT_TRUE(panel.hasTitle("Cuebright — talk"));
    EXPECT_TRUE(panel.shows("Card 2 of 2"));
    panel.press("Left");
    EXPECT_TRUE(panel.shows("first words"));
    EXPECT_TRUE(panel.hasBrightness(0, kDark));
}

TEST(DesktopMenus, SettingsAreReachedAndLeftByKeyboardAndTheirKeysAreTheMenus)
{
    const Home home;
    RunningPanel panel(home);
    follow(panel,
        {
            {"ctrl+comma", kShows, "Reset All Data…"},
            {"ctrl+shift+n", kHasTitle, "Cuebright — New Deck"}, // from the settings window
        });
    ASSERT_TRUE(panel.pressButton("Reset All Data…"));
    ASSERT_TRUE(panel.pressButton("Reset Everything"));
    EXPECT_TRUE(panel.hasTitle("Cuebright — Getting Started"));
    panel.press("Escape");
    EXPECT_TRUE(panel.showsNoLonger("Reset All Data…"));

    panel.send(SIGTERM);
    ASSERT_EQ(panel.exitStatus(), 0) << panel.console();
    const RunningPanel again(home);
    EXPECT_TRUE(again.shows("Next page")) << "the introduction is back";
    again.press("Return Return Return Return");
    EXPECT_TRUE(again.showsNoLonger("Get started"));
    EXPECT_TRUE(waitUntil(
        [&] { return readFile(home.preferencesFile()).find("cuebrightOnboardingDone=true") != std::string::npos; }));
}

TEST(DesktopMenus, WithoutABusEverythingElseWorks)
{
    const Home home;
    Process program(home.program({{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere"}}));
    Desktop::WindowId window = 0;
    const auto isOnScreen = [&] { return desktop().isOnScreen(window); };
    ASSERT_TRUE(waitUntil([&] { return (window = desktop().windowOf(program.pid()).value_or(0)) != 0; }));
    desktop().press("ctrl+shift+s");
    EXPECT_TRUE(waitUntil(std::not_fn(isOnScreen)));
    desktop().press("ctrl+shift+s");
    EXPECT_TRUE(waitUntil(isOnScreen));
    const auto place = desktop().clientArea(window);
    desktop().click(place.x + 12, place.y + place.height - 8);
    ASSERT_TRUE(waitUntil([&] { return desktop().isActive(window); }));
    desktop().press("ctrl+2");
    EXPECT_TRUE(waitUntil([&] { return desktop().title(window) == "Cuebright — Product Demo"; }));
    program.send(SIGTERM);
    EXPECT_EQ(program.exitStatus(), 0);
    EXPECT_NE(readFile(home.stateFile()).find("Product Demo"), std::string::npos);
}

} // namespace
} // namespace cuebright::test
