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

TEST(DesktopPanel, ArrowKeysStepThroughTheCards)
{
    const Home home;
    const RunningPanel panel(home);

    panel.press("Right");
    EXPECT_TRUE(panel.shows("Card 2 of 5"));
    panel.press("Right");
    EXPECT_TRUE(panel.shows("Card 3 of 5"));
    panel.press("Left");
    EXPECT_TRUE(panel.shows("Card 2 of 5"));
}

TEST(DesktopPanel, DigitsSwitchTheDeckAndItsTitle)
{
    const Home home;
    const RunningPanel panel(home);

    panel.press("ctrl+3");
    EXPECT_TRUE(panel.hasTitle("Cuebright — Q4 Board Update"));
    EXPECT_TRUE(panel.shows("Card 1 of 2"));
}

TEST(DesktopPanel, WhatWasWrittenIsThereAfterARestart)
{
    const Home home;
    {
        RunningPanel panel(home);
        panel.press("Right");
        ASSERT_TRUE(panel.shows("Card 2 of 5"));
        panel.press("ctrl+e");
        ASSERT_TRUE(panel.editorHolds("Navigating your cards"));
        panel.type("Breathe first 123 ");
        ASSERT_TRUE(panel.editorHolds("Breathe first 123 "));
        panel.press("ctrl+Return");
        ASSERT_TRUE(panel.shows("Edit card"));
        panel.press("ctrl+q");
        ASSERT_EQ(panel.exitStatus(), 0) << panel.console();
    }

    const RunningPanel panel(home);
    EXPECT_TRUE(panel.shows("Card 2 of 5"));
    panel.press("ctrl+e");
    EXPECT_TRUE(panel.editorHolds("Breathe first 123 "));
}

TEST(DesktopPanel, CancellingAnEditForgetsWhatWasTyped)
{
    const Home home;
    RunningPanel panel(home);
    panel.press("ctrl+e");
    ASSERT_TRUE(panel.editorHolds("Cue cards"));
    panel.type("mistake");
    ASSERT_TRUE(panel.editorHolds("mistake"));

    panel.press("ctrl+period");
    ASSERT_TRUE(panel.shows("Edit card"));
    panel.press("ctrl+q");

    EXPECT_EQ(panel.exitStatus(), 0) << panel.console();
    EXPECT_EQ(readFile(home.stateFile()).find("mistake"), std::string::npos);
}

TEST(DesktopPanel, NewCardGoesByUndoAndComesBackByRedo)
{
    const Home home;
    const RunningPanel panel(home);
    panel.press("ctrl+n");
    ASSERT_TRUE(panel.shows("Card 6 of 6"));
    panel.press("Escape");
    ASSERT_TRUE(panel.shows("Edit card"));

    panel.press("ctrl+z");
    EXPECT_TRUE(panel.shows("Card 5 of 5"));
    panel.press("ctrl+shift+z");
    EXPECT_TRUE(panel.shows("Card 6 of 6"));
}

TEST(DesktopPanel, EveryKeyOfThePanelWorksWithNumLockAndCapsLockOn)
{
    const Home home;
    home.prefer("cuebrightWordCount", "false");
    const RunningPanel panel(home);
    for (const auto* const lock : {"Num_Lock", "Caps_Lock"})
        panel.press(lock);

    panel.press("Right");
    EXPECT_TRUE(panel.shows("Card 2 of 5"));
    panel.press("Left");
    EXPECT_TRUE(panel.shows("Card 1 of 5"));
    panel.press("ctrl+Right");
    EXPECT_TRUE(panel.shows("Card 2 of 5"));
    panel.press("ctrl+Left");
    EXPECT_TRUE(panel.shows("Card 1 of 5"));
    panel.press("ctrl+2");
    EXPECT_TRUE(panel.hasTitle("Cuebright — Product Demo"));
    panel.press("ctrl+9"); // no such deck
    panel.press("ctrl+KP_1");
    EXPECT_TRUE(panel.hasTitle("Cuebright — Getting Started"));
    panel.press("ctrl+o"); // taken, and nothing
    panel.press("Escape");
    panel.press("ctrl+d");
    EXPECT_TRUE(panel.shows("Delete this card?"));
    panel.press("Escape");
    EXPECT_TRUE(panel.showsNoLonger("Delete this card?"));
    panel.press("ctrl+shift+w");
    EXPECT_TRUE(panel.shows("62w · ~1 min"));

    panel.press("ctrl+e");
    ASSERT_TRUE(panel.editorHolds("Cue cards"));
    panel.press("ctrl+o");
    EXPECT_TRUE(panel.shows("Overwrite"));
    panel.press("ctrl+o");
    EXPECT_TRUE(panel.shows("Insert"));
    panel.type("1");
    EXPECT_TRUE(panel.editorHolds("# 1"));
    panel.press("ctrl+z");
    EXPECT_TRUE(panel.editorHolds("# C"));
    panel.press("ctrl+shift+z");
    EXPECT_TRUE(panel.editorHolds("# 1"));
    panel.press("ctrl+2"); // the editor's
    panel.press("ctrl+period");
    EXPECT_TRUE(panel.shows("Edit card"));
    EXPECT_TRUE(panel.hasTitle("Cuebright — Getting Started"));

    panel.press("ctrl+Return");
    ASSERT_TRUE(panel.editorHolds("# C"));
    panel.type("2");
    panel.press("ctrl+Return");
    EXPECT_TRUE(panel.shows("Edit card"));
    panel.press("ctrl+e");
    EXPECT_TRUE(panel.editorHolds("2"));
    panel.press("ctrl+e");
    EXPECT_TRUE(panel.shows("Edit card"));
    for (const auto* const lock : {"Num_Lock", "Caps_Lock"})
        panel.press(lock);
}

} // namespace
} // namespace cuebright::test
