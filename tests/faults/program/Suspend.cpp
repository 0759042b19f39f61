#include "desktop/RunningPanel.h"

#include <chrono>

namespace cuebright::test {
namespace {

using std::chrono::seconds;
using std::chrono::steady_clock;

struct Case {
    const char* preset; ///< of the countdown; null for the stopwatch
    seconds sleep;
    const char* after;
    seconds due;
};

TEST(Suspend, CountsToTheSecond)
{
    const Case cases[] = {{"60 minutes", seconds(3600), "00:00", seconds(0)},
        {"60 minutes", seconds(3000), "09:50", seconds(9)}, {nullptr, seconds(3600), "60:10", seconds(10)}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.after);
        const Home home;
        const auto shift = home.stateFolder().parent_path() / "shift";
        const auto suspendFor = [&](seconds time) {
            Home::write(shift.string() + ".next", std::to_string(time.count()));
            std::filesystem::rename(shift.string() + ".next", shift);
        };
        suspendFor(seconds(0));
        const RunningPanel panel(home, {{"LD_PRELOAD", SHIFTED_CLOCK}, {"SHIFTED_CLOCK_FILE", shift.string()}});
        if (c.preset) {
            ASSERT_TRUE(panel.pressButton("Timer: 00:00") && panel.pressButton(c.preset));
        }
        ASSERT_TRUE(panel.showsButton("Start timer"));
        const auto before = steady_clock::now();
        ASSERT_TRUE(panel.pressButton("Start timer"));
        ASSERT_TRUE(panel.showsButton("Pause timer"));
        const auto started = steady_clock::now();

        suspendFor(c.sleep);
        EXPECT_TRUE(panel.shows(std::string("Timer: ") + c.after));
        const auto now = steady_clock::now();
        EXPECT_GE(now - before, c.due) << "early";
        EXPECT_LT(now - started, c.due + seconds(3)) << "late"; // a tick later, on a slow machine
        EXPECT_TRUE(panel.showsButton("Pause timer")) << "an expired countdown still runs";
    }
    std::cout << "counts: " << std::size(cases) << " suspends" << std::endl;
}

} // namespace
} // namespace cuebright::test
