#include "desktop/RunningPanel.h"

namespace cuebright::test {
namespace {

constexpr auto kLeft = RunningPanel::Keyboard::Left;

/// Whether the panel is raised above a full-screen window.
testing::AssertionResult isLifted(const RunningPanel& panel, bool wanted = true)
{
    return panel.reaches(wanted ? "being lifted" : "not being lifted",
        [&] { return desktop().hasProperty(panel.window(), "WM_TRANSIENT_FOR") == wanted; });
}

testing::AssertionResult isAbove(const RunningPanel& panel, const OtherWindow& other)
{
    return panel.reaches("being above", [&] { return desktop().isAbove(panel.window(), other.id()); });
}

void hideAndShow(const RunningPanel& panel)
{
    panel.press("ctrl+shift+s");
    ASSERT_TRUE(panel.isOffScreen());
    panel.press("ctrl+shift+s");
    ASSERT_TRUE(panel.isOnScreen());
}

TEST(DesktopFloating, TheHotKeyLeavesTheActiveWindowActive)
{
    const Home home;
    const OtherWindow other;
    const RunningPanel panel(home, {}, kLeft);
    EXPECT_TRUE(other.hasFocus()) << "starting takes nothing";
    hideAndShow(panel);
    // One lock alone, both, the other alone, none.
    for (const auto* const lock : {"Num_Lock", "Caps_Lock", "Num_Lock", "Caps_Lock"}) {
        panel.press(lock);
        hideAndShow(panel);
    }
    EXPECT_TRUE(other.hasFocus());
    EXPECT_TRUE(isAbove(panel, other));
}

TEST(DesktopFloating, ACombinationThatIsTakenLeavesEverythingElseWorking)
{
    const auto grab = desktop().grabHotKey();
    const Home home;
    const RunningPanel panel(home);
    panel.press("ctrl+shift+s");
    panel.press("Right");
    EXPECT_TRUE(panel.shows("Card 2 of 5"));
    EXPECT_TRUE(desktop().isOnScreen(panel.window()));
    EXPECT_EQ(panel.console(), "");
}

TEST(DesktopFloating, ItStaysAboveARunningSlideShow)
{
    const Home home;
    const RunningPanel panel(home, {}, kLeft);
    {
        const OtherWindow slides(Desktop::Size::FullScreen);
        EXPECT_TRUE(isAbove(panel, slides));
        hideAndShow(panel);
        EXPECT_TRUE(isAbove(panel, slides)) << "after hiding and showing";
        EXPECT_TRUE(slides.hasFocus());

        desktop().restartWindowManager();
        EXPECT_TRUE(isAbove(panel, slides)) << "after the window manager came back";

        desktop().leaveFullScreen(slides.id());
        EXPECT_TRUE(isLifted(panel, false));
        EXPECT_TRUE(isAbove(panel, slides)) << "above a window of the usual kind";
    }
    const OtherWindow more(Desktop::Size::FullScreen);
    EXPECT_TRUE(isAbove(panel, more)) << "above the next slide show";
}

TEST(DesktopFloating, ASlideShowThatIsMinimisedOrEndsLeavesThePanelWhereItWas)
{
    const Home home;
    const RunningPanel panel(home, {}, kLeft);
    const auto place = panel.area();
    for (const bool isMinimised : {true, false}) {
        std::optional<OtherWindow> slides(Desktop::Size::FullScreen);
        ASSERT_TRUE(isLifted(panel));
        if (isMinimised) {
            desktop().minimise(slides->id());
            ASSERT_TRUE(waitUntil([&] { return !desktop().isOnScreen(slides->id()); }));
        } else
            slides.reset();
        EXPECT_TRUE(isLifted(panel, false));
        EXPECT_TRUE(panel.isOnScreen());
        EXPECT_EQ(panel.area(), place);
        if (!isMinimised)
            continue;
        desktop().minimise(panel.window());
        EXPECT_TRUE(panel.isOffScreen()) << "for its own sake";
        EXPECT_FALSE(waitUntil([&] { return desktop().isOnScreen(panel.window()); }, std::chrono::milliseconds(500)));
        panel.press("ctrl+shift+s");
        EXPECT_TRUE(panel.isOnScreen());
    }
}

TEST(DesktopFloating, ClickingActivatesAndDraggingMovesOnce)
{
    const Home home;
    const auto keeps = [&](const std::string& line) {
        return readFile(home.preferencesFile()).find(line) != std::string::npos;
    };
    Desktop::Area moved;
    {
        const OtherWindow other;
        RunningPanel panel(home, {}, kLeft);
        const auto before = panel.area();
        desktop().drag(before.x + 360, before.y + 400, before.x + 460, before.y + 330);
        ASSERT_TRUE(panel.reaches("its new place", [&] { return panel.area().x > before.x + 50; }));
        EXPECT_TRUE(panel.isActive());
        ASSERT_TRUE(waitUntil([&] { return keeps("[cuebrightWindowFrame]"); }));
        moved = panel.area();
        EXPECT_TRUE(keeps("x=" + std::to_string(moved.x)));
        EXPECT_TRUE(keeps("y=" + std::to_string(1800 - moved.y - moved.height)));
        for (int i = 0; i < 10; ++i)
            hideAndShow(panel);
        EXPECT_EQ(panel.area(), moved) << "ten times hidden and shown";
        panel.send(SIGTERM);
        EXPECT_EQ(panel.exitStatus(), 0);
    }
    EXPECT_EQ(RunningPanel(home, {}, kLeft).area(), moved) << "after a restart";
    EXPECT_EQ(RunningPanel(home, {{"QT_SCALE_FACTOR", "2"}}, kLeft).area().x, 2 * moved.x) << "in points";
}

TEST(DesktopFloating, ClosingAndMinimisingHideItAndTheHotKeyBringsItBack)
{
    const Home home;
    const RunningPanel panel(home);
    const auto place = panel.area();
    desktop().askToClose(panel.window());
    ASSERT_TRUE(panel.isOffScreen());
    panel.press("ctrl+shift+s");
    EXPECT_TRUE(panel.isOnScreen());
    for (int i = 0; i < 5; ++i) { // repeated, because the order of two events may vary
        desktop().minimise(panel.window());
        ASSERT_TRUE(panel.isOffScreen());
        const OtherWindow other;
        panel.press("ctrl+shift+s");
        EXPECT_TRUE(panel.isOnScreen());
        EXPECT_TRUE(other.hasFocus());
        EXPECT_TRUE(panel.reaches("its place, framed anew", [&] { return panel.area() == place; }));
        const OtherWindow later;
        EXPECT_TRUE(isAbove(panel, later));
    }
}

} // namespace
} // namespace cuebright::test
