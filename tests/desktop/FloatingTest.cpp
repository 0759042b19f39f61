#include "desktop/RunningPanel.h"

namespace cuebright::test {
namespace {

constexpr auto kLeft = RunningPanel::Keyboard::Left;

/// Another program's window, for as long as the test needs it.
class OtherWindow final {
public:
    explicit OtherWindow(Desktop::Size size)
        : m_window(desktop().openWindow(size))
    {
    }
    ~OtherWindow() { close(); }
    OtherWindow(const OtherWindow&) = delete;
    OtherWindow& operator=(const OtherWindow&) = delete;

    [[nodiscard]] Desktop::WindowId id() const { return m_window; }
    [[nodiscard]] bool hasKeyboard() const { return desktop().isActive(m_window); }
    void close()
    {
        if (m_window != 0)
            desktop().closeWindow(std::exchange(m_window, 0));
    }

private:
    Desktop::WindowId m_window;
};

/// Whether the panel is raised over a slide show.
testing::AssertionResult isLifted(const RunningPanel& panel, bool wanted = true)
{
    const bool isSo = waitUntil([&] { return desktop().hasProperty(panel.window(), "WM_TRANSIENT_FOR") == wanted; });
    return isSo ? testing::AssertionSuccess() : testing::AssertionFailure() << (wanted ? "it is not" : "it is");
}

void hideAndShow(const RunningPanel& panel)
{
    panel.press("ctrl+shift+s");
    ASSERT_TRUE(panel.isOffScreen());
    panel.press("ctrl+shift+s");
    ASSERT_TRUE(panel.isOnScreen());
}

testing::AssertionResult isAbove(Desktop::WindowId upper, Desktop::WindowId lower)
{
    return waitUntil([&] { return desktop().isAbove(upper, lower); }) ? testing::AssertionSuccess()
                                                                      : testing::AssertionFailure() << "it is below";
}

TEST(DesktopFloating, TheHotKeyShowsAndHidesFromAnotherProgramThatKeepsTheKeyboard)
{
    const Home home;
    const OtherWindow other(Desktop::Size::Small);
    const RunningPanel panel(home, {}, kLeft);
    EXPECT_TRUE(other.hasKeyboard()) << "starting takes nothing";

    for (const auto& locks :
        std::vector<std::vector<const char*>> {{}, {"Num_Lock"}, {"Num_Lock", "Caps_Lock"}, {"Caps_Lock"}}) {
        for (const auto* const lock : locks)
            panel.press(lock);
        SCOPED_TRACE(testing::PrintToString(locks));
        hideAndShow(panel);
        for (const auto* const lock : locks)
            panel.press(lock);
    }
    EXPECT_TRUE(other.hasKeyboard());
    EXPECT_TRUE(isAbove(panel.window(), other.id()));
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
    OtherWindow slides(Desktop::Size::FullScreen);
    EXPECT_TRUE(isAbove(panel.window(), slides.id()));
    EXPECT_TRUE(slides.hasKeyboard());

    hideAndShow(panel);
    EXPECT_TRUE(isAbove(panel.window(), slides.id())) << "after hiding and showing";
    EXPECT_TRUE(slides.hasKeyboard());

    desktop().restartWindowManager();
    EXPECT_TRUE(isAbove(panel.window(), slides.id())) << "after the window manager came back";

    desktop().leaveFullScreen(slides.id());
    EXPECT_TRUE(isLifted(panel, false));
    EXPECT_TRUE(isAbove(panel.window(), slides.id())) << "above a window of the usual kind";
    slides.close();
    const OtherWindow more(Desktop::Size::FullScreen);
    EXPECT_TRUE(isAbove(panel.window(), more.id())) << "above the next slide show";
}

TEST(DesktopFloating, ASlideShowThatIsMinimisedOrEndsLeavesThePanelWhereItWas)
{
    const Home home;
    const RunningPanel panel(home, {}, kLeft);
    const auto place = panel.area();
    for (const bool isMinimised : {true, false}) {
        OtherWindow slides(Desktop::Size::FullScreen);
        ASSERT_TRUE(isLifted(panel));
        if (isMinimised) {
            desktop().minimise(slides.id());
            ASSERT_TRUE(waitUntil([&] { return !desktop().isOnScreen(slides.id()); }));
        } else
            slides.close();
        EXPECT_TRUE(isLifted(panel, false));
        EXPECT_TRUE(panel.isOnScreen());
        EXPECT_EQ(panel.area(), place);
    }
}

TEST(DesktopFloating, ClickingTakesTheKeyboardAndDraggingMovesOnce)
{
    const Home home;
    const auto kept = [&](std::string_view line) {
        return readFile(home.preferencesFile()).find(line) != std::string::npos;
    };
    Desktop::Area moved;
    {
        const OtherWindow other(Desktop::Size::Small);
        RunningPanel panel(home, {}, kLeft);
        const auto before = panel.area();
        desktop().drag(before.x + 360, before.y + 400, before.x + 460, before.y + 330);
        ASSERT_TRUE(waitUntil([&] { return panel.area().x > before.x + 50; }));
        EXPECT_TRUE(waitUntil([&] { return desktop().isActive(panel.window()); }));
        ASSERT_TRUE(waitUntil([&] { return kept("[cuebrightWindowFrame]"); }));
        moved = panel.area();
        EXPECT_TRUE(kept("x=" + std::to_string(moved.x)));
        EXPECT_TRUE(kept("y=" + std::to_string(1800 - moved.y - moved.height)));
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
    RunningPanel panel(home);
    const auto place = panel.area();
    desktop().askToClose(panel.window());
    ASSERT_TRUE(panel.isOffScreen());
    panel.press("ctrl+shift+s");
    EXPECT_TRUE(panel.isOnScreen());
    desktop().minimise(panel.window());
    ASSERT_TRUE(panel.isOffScreen());
    const OtherWindow other(Desktop::Size::Small);
    panel.press("ctrl+shift+s");
    EXPECT_TRUE(panel.isOnScreen());
    EXPECT_TRUE(other.hasKeyboard());
    EXPECT_TRUE(waitUntil([&] { return panel.area() == place; })) << "once the window manager has framed it";
}

} // namespace
} // namespace cuebright::test
