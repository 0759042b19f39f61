#include "timer/TimerManager.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <tuple>
#include <vector>

namespace cuebright::test {

namespace {

using namespace std::chrono_literals;

/// "countdown running 09:59 normal ticking"; the last word only if a tick is scheduled.
std::string describe(const TimerManager& timer, const FakeMainQueue& mainQueue)
{
    const char* const runStates[] = {"stopped", "running", "paused"};
    const char* const urgencies[] = {"normal", "warning", "critical", "expired"};
    return std::string(timer.mode() == TimerManager::Mode::Stopwatch ? "stopwatch " : "countdown ")
        + runStates[static_cast<int>(timer.runState())] + " " + timer.displayString() + " "
        + urgencies[static_cast<int>(timer.urgency())] + (mainQueue.pendingCount() == 1 ? " ticking" : "");
}

class Timer : public testing::Test {
protected:
    using Operation = std::function<void(TimerManager&)>;
    struct Step {
        Operation operation;
        Seconds thenPasses;
        const char* expected;
    };

    static Operation countdown(std::int64_t minutes)
    {
        return [minutes](TimerManager& t) { t.setCountdown(minutes); };
    }
    static constexpr auto kNothing = [](TimerManager&) {};
    static constexpr auto kStart = &TimerManager::start;
    static constexpr auto kPause = &TimerManager::pause;
    static constexpr auto kResume = &TimerManager::resume;
    static constexpr auto kToggle = &TimerManager::toggle;
    static constexpr auto kReset = &TimerManager::reset;

    /// Delays the next tick by `duration`.
    void tickAfter(Seconds duration)
    {
        clock.up += duration;
        mainQueue.advance(0s);
    }

    FakeClock clock;
    FakeMainQueue mainQueue {clock};
    TimerManager timer {clock, mainQueue};
};

TEST_F(Timer, LateTicksDoNotDriftAndTheSystemsClockDoesNotMatter)
{
    timer.start();
    tickAfter(3400ms);
    EXPECT_NEAR(timer.elapsed().count(), 3.4, 1e-6);
    clock.wallClock -= 1h;
    tickAfter(10h); // suspended
    EXPECT_NEAR(timer.elapsed().count(), 36003.4, 1e-6);
}

TEST_F(Timer, UrgencyGrowsAsACountdownRunsOut)
{
    const std::tuple<std::int64_t, double, const char*> cases[] = {
        {10, 0, "countdown running 10:00 normal ticking"}, {10, 299.5, "countdown running 05:00 normal ticking"},
        {10, 300, "countdown running 05:00 warning ticking"}, {5, 239.5, "countdown running 01:00 warning ticking"},
        {5, 240, "countdown running 01:00 critical ticking"}, {5, 299.5, "countdown running 00:00 critical ticking"},
        {5, 299.0011, "countdown running 00:01 critical ticking"},
        {5, 299.9996, "countdown running 00:00 expired"}, // timers may fire that early
        {5, 300, "countdown running 00:00 expired"}, {5, 10000, "countdown running 00:00 expired"},
        {0, 0, "countdown running 00:00 expired ticking"}, // until its first tick
    };
    for (const auto& [minutes, elapsed, expected] : cases) {
        timer.setCountdown(minutes);
        timer.start();
        tickAfter(Seconds(elapsed));
        EXPECT_EQ(describe(timer, mainQueue), expected);
        EXPECT_LE(timer.elapsed(), std::chrono::minutes(minutes));
    }
}

TEST_F(Timer, EveryOperationLeadsFromEveryStateToItsOwn)
{
    const struct {
        const char* name;
        std::vector<Step> steps;
    } stories[] = {
        {"a stopwatch counts up with each second and without end",
            {
                {kNothing, 0s, "stopwatch stopped 00:00 normal"},
                {kStart, 999ms, "stopwatch running 00:00 normal ticking"},
                {kNothing, 6000ms + 1ms, "stopwatch running 00:07 normal ticking"},
                {kNothing, 5994s, "stopwatch running 100:01 normal ticking"},
            }},
        {"a pause does not count, starting and resetting forget what was counted",
            {
                {kStart, 600ms, "stopwatch running 00:00 normal ticking"},
                {kPause, 1h, "stopwatch paused 00:00 normal"}, // between two ticks
                {kResume, 600ms, "stopwatch running 00:00 normal ticking"},
                {kPause, 0s, "stopwatch paused 00:01 normal"},
                {kStart, 2s, "stopwatch running 00:02 normal ticking"},
                {kReset, 0s, "stopwatch stopped 00:00 normal"},
                {kResume, 1s, "stopwatch running 00:01 normal ticking"},
            }},
        {"resetting keeps mode and duration, choosing a mode stops what runs",
            {
                {countdown(10), 0s, "countdown stopped 10:00 normal"},
                {kStart, 5s, "countdown running 09:55 normal ticking"},
                {kReset, 1s, "countdown stopped 10:00 normal"},
                {kToggle, 1s, "countdown running 09:59 normal ticking"},
                {countdown(45), 0s, "countdown stopped 45:00 normal"},
                {kStart, 5s, "countdown running 44:55 normal ticking"},
                {&TimerManager::setStopwatch, 0s, "stopwatch stopped 00:00 normal"},
            }},
        {"an expired countdown stays running and expires again after a pause",
            {
                {countdown(5), 0s, "countdown stopped 05:00 normal"},
                {kStart, 299s, "countdown running 00:01 critical ticking"},
                {kNothing, 10s, "countdown running 00:00 expired"},
                {kToggle, 0s, "countdown paused 00:00 normal"},
                {kToggle, 0s, "countdown running 00:00 expired ticking"},
                {kNothing, 1s, "countdown running 00:00 expired"},
            }},
    };
    EXPECT_EQ(timer.countdownDuration(), 30min) << "at first";
    for (const auto& [name, steps] : stories) {
        TimerManager story(clock, mainQueue);
        for (const auto& step : steps) {
            step.operation(story);
            mainQueue.advance(step.thenPasses);
            EXPECT_EQ(describe(story, mainQueue), step.expected) << name << ", step " << &step - steps.data();
        }
    }
}

TEST_F(Timer, ObserversAreNotifiedBeforeAChange)
{
    std::string seen;
    const auto subscription = timer.willChange.subscribe([&] {
        if (seen.empty())
            seen = describe(timer, mainQueue);
    });
    timer.start();
    EXPECT_EQ(std::exchange(seen, ""), "stopwatch stopped 00:00 normal");
    mainQueue.advance(1s);
    EXPECT_EQ(std::exchange(seen, ""), "stopwatch running 00:00 normal ticking");
    timer.pause();
    seen.clear();
    mainQueue.advance(10s);
    EXPECT_EQ(seen, "");
}

} // namespace

} // namespace cuebright::test
