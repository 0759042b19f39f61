#include "desktop/RunningPanel.h"

#include <csignal>

namespace cuebright::test {
namespace {

/// Opens the menu with that letter and goes down to an item; separators and what is disabled are passed over.
void choose(const RunningPanel& panel, const char* letter, int item)
{
    panel.press(std::string("alt+") + letter);
    for (int i = 0; i < item; ++i)
        panel.press("Down");
    panel.press("Return");
}

constexpr int kDark = 60;

TEST(DesktopMenus, AnEveningOfWorkByKeyboardAloneIsThereTheNextMorning)
{
    const Home home;
    {
        RunningPanel panel(home);
        ASSERT_TRUE(panel.shows("File"));
        choose(panel, "f", 2); // New Deck
        ASSERT_TRUE(panel.hasTitle("Cuebright — New Deck"));
        choose(panel, "f", 3); // Rename Deck…: with one card there is none to delete
        ASSERT_TRUE(panel.shows("Rename Deck"));
        panel.type("talk\n");
        ASSERT_TRUE(panel.hasTitle("Cuebright — talk"));
        choose(panel, "f", 0); // New Card
        ASSERT_TRUE(panel.editorHolds("# "));
        panel.type("first words");
        choose(panel, "e", 1); // Save Card: below Undo, there is nothing to redo
        ASSERT_TRUE(panel.shows("Card 2 of 2"));
        choose(panel, "d", 0); // Move Card Up
        ASSERT_TRUE(panel.shows("Card 1 of 2"));
        panel.press("Right");
        ASSERT_TRUE(panel.shows("Card 2 of 2"));
        panel.press("alt+v"); // Appearance, Dark
        for (const auto* const key : {"Return", "Down", "Down", "Return"})
            panel.press(key);
        ASSERT_TRUE(panel.hasBrightness(0, kDark));
        panel.press("alt+c");
        panel.press("Up"); // Quit Cuebright
        panel.press("Return");
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
    panel.press("ctrl+comma");
    ASSERT_TRUE(panel.shows("Reset All Data…"));
    panel.press("ctrl+shift+n"); // the main menu's, while the settings have the keyboard
    EXPECT_TRUE(panel.hasTitle("Cuebright — New Deck"));

    ASSERT_TRUE(panel.pressButton("Reset All Data…"));
    ASSERT_TRUE(panel.pressButton("Reset Everything"));
    EXPECT_TRUE(panel.hasTitle("Cuebright — Getting Started"));
    panel.press("Escape");
    EXPECT_TRUE(panel.showsNoLonger("Reset All Data…"));

    panel.send(SIGTERM);
    ASSERT_EQ(panel.exitStatus(), 0) << panel.console();
    const RunningPanel again(home);
    EXPECT_TRUE(again.shows("Next page")) << "the introduction is back";
}

TEST(DesktopMenus, WithoutABusEverythingElseWorks)
{
    const Home home;
    Process program(home.program({{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere"}}));
    Desktop::WindowId window = 0;
    ASSERT_TRUE(waitUntil([&] { return (window = desktop().windowOf(program.pid()).value_or(0)) != 0; }));
    desktop().press("ctrl+shift+s");
    EXPECT_TRUE(waitUntil([&] { return !desktop().isOnScreen(window); }));
    desktop().press("ctrl+shift+s");
    EXPECT_TRUE(waitUntil([&] { return desktop().isOnScreen(window); }));
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
