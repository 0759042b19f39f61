#include "desktop/RunningPanel.h"

#include <csignal>
#include <ostream>

namespace cuebright::test {
namespace {

struct WayOut {
    const char* name;
    int signal;

    friend void PrintTo(const WayOut& wayOut, std::ostream* out) { *out << wayOut.name; }
};

class Leaving : public testing::TestWithParam<WayOut> { };

TEST_P(Leaving, KeepsWhatIsStillBeingTyped)
{
    const Home home;
    RunningPanel panel(home);
    panel.press("ctrl+e");
    ASSERT_TRUE(panel.editorHolds("Cue cards"));
    panel.type("unfinished thought");
    ASSERT_TRUE(panel.editorHolds("unfinished thought"));

    panel.send(GetParam().signal);

    EXPECT_EQ(panel.exitStatus(), 0) << panel.console();
    EXPECT_NE(readFile(home.stateFile()).find("unfinished thought"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Signals, Leaving,
    testing::Values(WayOut {"Terminate", SIGTERM}, WayOut {"Interrupt", SIGINT}, WayOut {"HangUp", SIGHUP}),
    [](const auto& wayOut) { return wayOut.param.name; });

TEST(LeavingByTheKeyboard, KeepsWhatIsStillBeingTyped)
{
    const Home home;
    RunningPanel panel(home);
    panel.press("ctrl+e");
    ASSERT_TRUE(panel.editorHolds("Cue cards"));
    panel.type("unfinished thought");
    ASSERT_TRUE(panel.editorHolds("unfinished thought"));

    panel.press("ctrl+q");

    EXPECT_EQ(panel.exitStatus(), 0) << panel.console();
    EXPECT_NE(readFile(home.stateFile()).find("unfinished thought"), std::string::npos);
}

TEST(LeavingWithTheDisplay, KeepsWhatIsStillBeingTyped)
{
    const Home home;
    RunningPanel panel(home);
    panel.press("ctrl+e");
    ASSERT_TRUE(panel.editorHolds("Cue cards"));
    panel.type("unfinished thought");
    ASSERT_TRUE(panel.editorHolds("unfinished thought"));

    desktop().cutOff(panel.window());

    EXPECT_TRUE(panel.exitStatus().has_value());
    EXPECT_NE(readFile(home.stateFile()).find("unfinished thought"), std::string::npos);
}

} // namespace
} // namespace cuebright::test
