#include "desktop/RunningPanel.h"

#include <csignal>
#include <ostream>

namespace cuebright::test {
namespace {

struct WayOut {
    const char* name;
    void (*leave)(const RunningPanel&);
    bool isOrderly = true; ///< ends with status 0

    friend void PrintTo(const WayOut& wayOut, std::ostream* out) { *out << wayOut.name; }
};

class Leaving : public testing::TestWithParam<WayOut> { };

TEST_P(Leaving, KeepsWhatIsStillBeingTyped)
{
    const Home home;
    RunningPanel panel(home);
    follow(panel, {{"ctrl+e", kEditorHolds, "Cue cards"}, {"h a l f w a y", kEditorHolds, "halfway"}});

    GetParam().leave(panel);

    const auto status = panel.exitStatus();
    ASSERT_TRUE(status) << panel.console();
    EXPECT_EQ(*status == 0, GetParam().isOrderly) << *status << panel.console();
    EXPECT_NE(readFile(home.stateFile()).find("halfway"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Ways, Leaving,
    testing::Values(WayOut {"Terminate", [](const RunningPanel& panel) { panel.send(SIGTERM); }},
        WayOut {"Interrupt", [](const RunningPanel& panel) { panel.send(SIGINT); }},
        WayOut {"HangUp", [](const RunningPanel& panel) { panel.send(SIGHUP); }},
        WayOut {"Keyboard", [](const RunningPanel& panel) { panel.press("ctrl+q"); }},
        WayOut {"LostDisplay", [](const RunningPanel& panel) { desktop().cutOff(panel.window()); }, false}),
    [](const auto& wayOut) { return wayOut.param.name; });

} // namespace
} // namespace cuebright::test
