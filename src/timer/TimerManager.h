#pragma once

#include "foundation/Signal.h"
#include "platform/Clock.h"
#include "platform/MainQueue.h"

#include <cstdint>
#include <optional>
#include <string>

namespace cuebright {

/// The talk timer: a stopwatch, or a countdown that warns as time runs out. Not persisted.
///
/// Each tick computes the elapsed time from the start, so that lateness does not add up; a tick up to 0.1 s off
/// counts as on time. An expired countdown stays `Running`, without ticks, until the user acts.
class TimerManager final {
public:
    enum class Mode { Stopwatch, Countdown };
    enum class RunState { Stopped, Running, Paused };
    enum class Urgency { Normal, Warning, Critical, Expired };

    TimerManager(Clock& clock, MainQueue& mainQueue);
    TimerManager(const TimerManager&) = delete;
    TimerManager& operator=(const TimerManager&) = delete;

    [[nodiscard]] Mode mode() const { return m_mode; }
    [[nodiscard]] RunState runState() const { return m_runState; }
    [[nodiscard]] bool isRunning() const { return m_runState == RunState::Running; }
    [[nodiscard]] Seconds elapsed() const { return m_elapsed; }
    [[nodiscard]] Seconds countdownDuration() const { return m_countdownDuration; }
    [[nodiscard]] Seconds remaining() const; ///< of the countdown, never negative
    [[nodiscard]] Seconds displayTime() const; ///< `remaining` or `elapsed`, by mode
    [[nodiscard]] std::string displayString() const; ///< "mm:ss", minutes without limit
    [[nodiscard]] Urgency urgency() const; ///< `Normal` unless a countdown is running

    /// Whether the mode is a countdown of this length.
    [[nodiscard]] bool isCountdownOf(std::int64_t minutes) const;

    void start();
    void pause();
    void resume();
    /// Starts, pauses or resumes, by the run state.
    void toggle();
    void reset();
    void setCountdown(std::int64_t minutes);
    void setStopwatch();

    /// Emitted before a value changes.
    Signal<> willChange;

private:
    void scheduleTimer();
    void tick();
    void setElapsed(Seconds elapsed);

    Clock& m_clock;
    MainQueue& m_mainQueue;
    Mode m_mode = Mode::Stopwatch;
    RunState m_runState = RunState::Stopped;
    Seconds m_elapsed {0};
    Seconds m_countdownDuration {1800};
    PendingTask m_timer;
    std::optional<Seconds> m_startDate; ///< uptime of the last start or resume; absent unless running
    Seconds m_accumulated {0}; ///< elapsed before `m_startDate`
};

} // namespace cuebright
