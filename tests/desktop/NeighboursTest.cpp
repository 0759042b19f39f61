#include "desktop/RunningPanel.h"

#include <fstream>

#include <sys/stat.h>

namespace cuebright::test {
namespace {

/// Another process of the desktop: what it was asked, and a hand to move it.
class Neighbour final {
public:
    explicit Neighbour(const char* program)
        : m_input(m_folder.path() / "input")
        , m_isMade(::mkfifo(m_input.c_str(), 0600) == 0)
        , m_hand(m_input, std::ios::in | std::ios::out) // both, or it would wait for the other end
        , m_program({{"sh", "-c", "exec \"$0\" < \"$1\"", program, m_input}, desktop().environment(),
              m_folder.path() / "output", {}})
    {
        if (!m_isMade || m_program.firstLine() != "ready")
            throw std::runtime_error("the neighbour does not come up");
    }

    void order(std::string_view line) { m_hand << line << std::endl; }
    [[nodiscard]] testing::AssertionResult wasAsked(std::string_view call) const
    {
        return waitUntil([&] { return m_program.output().find(call) != std::string::npos; })
            ? testing::AssertionSuccess()
            : testing::AssertionFailure() << "it was asked:\n"
                                          << m_program.output();
    }

private:
    TemporaryFolder m_folder;
    std::filesystem::path m_input;
    bool m_isMade;
    std::fstream m_hand;
    Process m_program;
};

TEST(DesktopNeighbours, InAWaylandSessionTheHotKeyComesFromThePortal)
{
    Neighbour portal(FAKE_PORTAL);
    const Home home;
    const RunningPanel panel(home, {{"XDG_SESSION_TYPE", "wayland"}});
    ASSERT_TRUE(portal.wasAsked("BindShortcuts toggle-panel CTRL+SHIFT+s"));
    portal.order("activate toggle-panel");
    EXPECT_TRUE(panel.isOffScreen());
    portal.order("activate toggle-panel");
    EXPECT_TRUE(panel.isOnScreen());
}

TEST(DesktopNeighbours, KWinIsAskedInOrderAndWhatWasLostIsAppliedAgain)
{
    Neighbour kwin(FAKE_KWIN);
    Neighbour portal(FAKE_PORTAL);
    const Home home;
    const RunningPanel panel(home, {{"XDG_SESSION_TYPE", "wayland"}, {"XDG_CURRENT_DESKTOP", "KDE"}});
    EXPECT_TRUE(kwin.wasAsked("unloadScript(s) cuebright\n/Scripting org.kde.kwin.Scripting.loadScript(ss) "));
    EXPECT_TRUE(kwin.wasAsked(" cuebright\n/Scripting/Script5 org.kde.kwin.Script.run()\n"));

    ASSERT_TRUE(portal.wasAsked("BindShortcuts"));
    kwin.order("now refused");
    ASSERT_TRUE(panel.shows("Visible in screen shares"));
    portal.order("activate toggle-panel");
    ASSERT_TRUE(panel.isOffScreen());
    kwin.order("omitted");
    ASSERT_TRUE(kwin.wasAsked("will report omitted"));
    portal.order("activate toggle-panel");
    EXPECT_TRUE(panel.shows("Protection re-applied"));
    EXPECT_EQ(panel.console(), "[Cuebright] WARNING: sharingType was reset — re-applied .none\n");
}

TEST(DesktopNeighbours, TheLookFollowsTheDesktopWhileRunning)
{
    Neighbour portal(FAKE_PORTAL);
    const Home home;
    const RunningPanel panel(home);
    ASSERT_TRUE(panel.hasBrightness(200, 255));
    portal.order("set org.freedesktop.appearance color-scheme 1");
    EXPECT_TRUE(panel.hasBrightness(0, 60));
    portal.order("set org.freedesktop.appearance color-scheme 2");
    EXPECT_TRUE(panel.hasBrightness(200, 255));
}

TEST(DesktopNeighbours, GlassComesAndGoesWithTheCompositor)
{
    constexpr const char* kGlass = "_KDE_NET_WM_BLUR_BEHIND_REGION";
    const Home home;
    home.prefer("cuebrightOpacity", "0.8");
    const RunningPanel panel(home);
    EXPECT_FALSE(desktop().hasProperty(panel.window(), kGlass));
    {
        const auto compositor = desktop().startCompositor();
        EXPECT_TRUE(waitUntil([&] { return desktop().hasProperty(panel.window(), kGlass); }));
        EXPECT_TRUE(panel.hasBrightness(150, 230)) << "the desktop shows through";
    }
    EXPECT_TRUE(waitUntil([&] { return !desktop().hasProperty(panel.window(), kGlass); }));
}

} // namespace
} // namespace cuebright::test
