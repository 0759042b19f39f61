#include "faults/program/StateFileContent.h"

#include "platform/Clock.h"

#include <chrono>

namespace cuebright::test {
namespace {

using std::chrono::seconds;
using std::chrono::steady_clock;
using std::chrono::system_clock;

/// A panel whose clocks somebody else can shift, with a timer that was just started.
class RunningTimer final {
public:
    /// `countdown` is the name of a preset; none for the stopwatch.
    explicit RunningTimer(const char* countdown)
    {
        shift(seconds(0), seconds(0));
        m_panel.emplace(m_home, Environment {{"LD_PRELOAD", SHIFTED_CLOCK}, {"SHIFTED_CLOCK_FILE", m_shift.string()}});
        EXPECT_TRUE(!countdown || (m_panel->pressButton("Timer: 00:00") && m_panel->pressButton(countdown)));
        EXPECT_TRUE(m_panel->showsButton("Start timer"));
        m_start = steady_clock::now();
        EXPECT_TRUE(m_panel->pressButton("Start timer"));
        EXPECT_TRUE(m_panel->showsButton("Pause timer"));
        m_started = steady_clock::now();
    }

    [[nodiscard]] const Home& home() const { return m_home; }
    [[nodiscard]] const RunningPanel& panel() const { return *m_panel; }

    void shift(seconds ofDay, seconds withSuspend) const
    {
        const auto next = m_shift.string() + ".next";
        Home::write(next, std::to_string(ofDay.count()) + ' ' + std::to_string(withSuspend.count()));
        std::filesystem::rename(next, m_shift);
    }

    /// Shows the time when so many seconds have run since its start, no earlier and no later.
    void showsWhenDue(std::string_view time, seconds due) const
    {
        EXPECT_TRUE(m_panel->shows("Timer: " + std::string(time)));
        const auto now = steady_clock::now();
        EXPECT_GE(now - m_start, due) << time << " comes early";
        EXPECT_LT(now - m_started, due + seconds(3)) << time << " comes late"; // a tick later, on a slow machine
    }

private:
    Home m_home;
    std::filesystem::path m_shift = m_home.stateFolder().parent_path() / "shift";
    std::optional<RunningPanel> m_panel;
    steady_clock::time_point m_start;
    steady_clock::time_point m_started;
};

/// How many seconds the newest card's date is off the clock of this test.
double offsetOfNewestCard(const Home& home)
{
    const auto state = stateIn(home.stateFile()).value();
    return Seconds(state.decks.front().cards.back().createdAt - system_clock::now()).count();
}

TEST(Clock, SetBackAnHourLeavesACountdownAloneAndDatesWhatIsSavedThen)
{
    const RunningTimer timer("5 minutes");
    addCard(timer.panel(), "before");
    ASSERT_TRUE(isSaved(timer.home(), "before"));
    EXPECT_NEAR(offsetOfNewestCard(timer.home()), 0, 10);

    timer.shift(-seconds(3600), seconds(0));

    timer.showsWhenDue("04:50", seconds(9));
    addCard(timer.panel(), "after");
    ASSERT_TRUE(isSaved(timer.home(), "after"));
    EXPECT_NEAR(offsetOfNewestCard(timer.home()), -3600, 10);
    timer.showsWhenDue("04:43", seconds(16));
    EXPECT_EQ(timer.panel().console(), "");
    report("a countdown went on to the second, dates went back");
}

TEST(Suspend, CountsToTheSecond)
{
    struct Case {
        const char* countdown;
        seconds sleep;
        const char* after;
        seconds due;
    };
    const Case cases[] = {
        {"60 minutes", seconds(3600), "00:00", seconds(0)},
        {"60 minutes", seconds(3000), "09:50", seconds(9)},
        {nullptr, seconds(3600), "60:10", seconds(10)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.after);
        const RunningTimer timer(c.countdown);
        timer.shift(c.sleep, c.sleep);
        timer.showsWhenDue(c.after, c.due);
        EXPECT_TRUE(timer.panel().showsButton("Pause timer")) << "an expired countdown still runs";
    }
    report("of an hour and of 50 minutes, two countdowns and a stopwatch");
}

TEST(Suspend, DoesNotCountWhilePaused)
{
    const RunningTimer timer("10 minutes");
    timer.showsWhenDue("09:58", seconds(1));
    ASSERT_TRUE(timer.panel().pressButton("Pause timer"));
    ASSERT_TRUE(timer.panel().showsButton("Start timer"));
    timer.shift(seconds(3600), seconds(3600));
    ASSERT_TRUE(timer.panel().pressButton("Start timer"));
    EXPECT_TRUE(timer.panel().shows("Timer: 09:55"));
}

} // namespace
} // namespace cuebright::test
