#include "timer/TimerManager.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>

namespace cuebright::test {

namespace {

using namespace std::chrono_literals;

std::string describe(const TimerManager& timer)
{
    const char* const runStates[] = {"stopped", "running", "paused"};
    const char* const urgencies[] = {"normal", "warning", "critical", "expired"};
    return std::string(timer.mode() == TimerManager::Mode::Stopwatch ? "stopwatch " : "countdown ")
        + runStates[static_cast<int>(timer.runState())] + " " + timer.displayString() + " "
        + urgencies[static_cast<int>(timer.urgency())];
}

class Timer : public testing::Test {
protected:
    void advance(Seconds duration) { mainQueue.advance(duration); }
    /// The next tick comes this late.
    void tickAfter(Seconds duration)
    {
        clock.up += duration;
        mainQueue.advance(0s);
    }
    void expectElapsed(double seconds) const { EXPECT_NEAR(timer->elapsed().count(), seconds, 1e-6); }

    FakeClock clock;
    FakeMainQueue mainQueue {clock};
    std::optional<TimerManager> timer {std::in_place, clock, mainQueue};
};

TEST_F(Timer, StartsAsAStoppedStopwatch)
{
    EXPECT_EQ(describe(*timer), "stopwatch stopped 00:00 normal");
    EXPECT_EQ(timer->countdownDuration(), 30min);
    EXPECT_EQ(mainQueue.pendingCount(), 0U);
}

TEST_F(Timer, AStopwatchCountsUpWithEachSecond)
{
    timer->start();
    EXPECT_EQ(describe(*timer), "stopwatch running 00:00 normal");
    advance(999ms);
    EXPECT_EQ(timer->elapsed(), 0s);
    advance(1ms);
    EXPECT_EQ(describe(*timer), "stopwatch running 00:01 normal");
    advance(3724s);
    EXPECT_EQ(describe(*timer), "stopwatch running 62:05 normal");
    tickAfter(100h);
    EXPECT_EQ(timer->displayString(), "6062:05"); // minutes have no limit
}

TEST_F(Timer, LateTicksDoNotDrift)
{
    timer->start();
    tickAfter(3400ms);
    expectElapsed(3.4);
    tickAfter(10h); // the machine slept
    expectElapsed(36003.4);
}

TEST_F(Timer, SettingTheSystemsClockChangesNothing)
{
    timer->start();
    advance(2s);
    clock.wallClock -= 1h;
    advance(2s);
    EXPECT_EQ(timer->displayString(), "00:04");
}

TEST_F(Timer, UrgencyGrowsAsACountdownRunsOut)
{
    struct Case {
        std::int64_t minutes;
        double elapsed;
        const char* expected;
    };
    const Case cases[] = {
        {10, 0, "countdown running 10:00 normal"},
        {10, 299.5, "countdown running 05:00 normal"},
        {10, 300, "countdown running 05:00 warning"},
        {5, 1, "countdown running 04:59 warning"},
        {5, 239.5, "countdown running 01:00 warning"},
        {5, 240, "countdown running 01:00 critical"},
        {5, 299.5, "countdown running 00:00 critical"},
        {5, 300, "countdown running 00:00 expired"},
        {5, 10000, "countdown running 00:00 expired"},
        {0, 0, "countdown running 00:00 expired"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.expected);
        timer->setCountdown(c.minutes);
        timer->start();
        tickAfter(Seconds(c.elapsed));
        EXPECT_EQ(describe(*timer), c.expected);
    }
}

TEST_F(Timer, AnExpiredCountdownStaysRunningWithoutATick)
{
    timer->setCountdown(5);
    timer->start();
    advance(299s);
    EXPECT_EQ(mainQueue.pendingCount(), 1U);
    advance(10s);
    EXPECT_EQ(describe(*timer), "countdown running 00:00 expired");
    EXPECT_EQ(timer->elapsed(), 300s);
    EXPECT_EQ(timer->remaining(), 0s);
    EXPECT_EQ(mainQueue.pendingCount(), 0U);
}

TEST_F(Timer, AnExpiredCountdownPausesAndExpiresAgain)
{
    timer->setCountdown(5);
    timer->start();
    advance(301s);
    timer->toggle();
    EXPECT_EQ(describe(*timer), "countdown paused 00:00 normal");
    timer->toggle();
    EXPECT_EQ(describe(*timer), "countdown running 00:00 expired");
    advance(1s);
    EXPECT_EQ(timer->elapsed(), 300s);
    EXPECT_EQ(mainQueue.pendingCount(), 0U);
}

TEST_F(Timer, APausedCountdownIsNotUrgent)
{
    timer->setCountdown(5);
    timer->start();
    advance(270s);
    EXPECT_EQ(describe(*timer), "countdown running 00:30 critical");
    timer->pause();
    EXPECT_EQ(describe(*timer), "countdown paused 00:30 normal");
    EXPECT_EQ(mainQueue.pendingCount(), 0U);
}

TEST_F(Timer, APauseDoesNotCount)
{
    timer->start();
    advance(12700ms); // between two ticks
    timer->pause();
    advance(1h);
    timer->resume();
    EXPECT_TRUE(timer->isRunning());
    advance(2s);
    expectElapsed(14.7);
}

TEST_F(Timer, ToggleStartsPausesAndResumes)
{
    timer->toggle();
    advance(2s);
    EXPECT_EQ(describe(*timer), "stopwatch running 00:02 normal");
    timer->toggle();
    EXPECT_EQ(describe(*timer), "stopwatch paused 00:02 normal");
    timer->toggle();
    advance(1s);
    EXPECT_EQ(describe(*timer), "stopwatch running 00:03 normal");
}

TEST_F(Timer, ResetKeepsModeAndDuration)
{
    timer->setCountdown(10);
    timer->start();
    advance(5s);
    timer->reset();
    EXPECT_EQ(describe(*timer), "countdown stopped 10:00 normal");
    EXPECT_EQ(mainQueue.pendingCount(), 0U);
    timer->toggle();
    advance(1s);
    EXPECT_EQ(timer->displayString(), "09:59");
}

TEST_F(Timer, StartAndResetForgetWhatWasCounted)
{
    timer->start();
    advance(5s);
    timer->pause();
    timer->start();
    advance(2s);
    EXPECT_EQ(describe(*timer), "stopwatch running 00:02 normal");
    timer->pause();
    timer->reset();
    timer->resume();
    advance(1s);
    EXPECT_EQ(describe(*timer), "stopwatch running 00:01 normal");
}

TEST_F(Timer, ChoosingAModeStopsWhatRuns)
{
    timer->start();
    advance(5s);
    timer->setCountdown(45);
    EXPECT_EQ(describe(*timer), "countdown stopped 45:00 normal");
    EXPECT_EQ(mainQueue.pendingCount(), 0U);
    timer->start();
    advance(5s);
    timer->setStopwatch();
    EXPECT_EQ(describe(*timer), "stopwatch stopped 00:00 normal");
    EXPECT_EQ(timer->countdownDuration(), 45min);
    EXPECT_EQ(mainQueue.pendingCount(), 0U);
}

TEST_F(Timer, TheChosenCountdownIsKnownByItsMinutes)
{
    EXPECT_FALSE(timer->isCountdownOf(30)); // the duration alone is no choice
    timer->setCountdown(10);
    EXPECT_TRUE(timer->isCountdownOf(10));
    EXPECT_FALSE(timer->isCountdownOf(30));
    timer->setStopwatch();
    EXPECT_FALSE(timer->isCountdownOf(10));
}

TEST_F(Timer, ChangesAreToldBeforeTheyHappen)
{
    std::string seen;
    const auto subscription = timer->willChange.subscribe([&] {
        if (seen.empty())
            seen = describe(*timer);
    });
    timer->start();
    EXPECT_EQ(seen, "stopwatch stopped 00:00 normal");
    seen.clear();
    advance(1s);
    EXPECT_EQ(seen, "stopwatch running 00:00 normal");
    seen.clear();
    timer->pause();
    EXPECT_EQ(seen, "stopwatch running 00:01 normal");
    seen.clear();
    advance(10s);
    EXPECT_EQ(seen, "");
    timer->setCountdown(5);
    EXPECT_EQ(seen, "stopwatch paused 00:01 normal");
}

} // namespace

} // namespace cuebright::test
