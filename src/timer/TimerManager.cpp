#include "timer/TimerManager.h"

#include "foundation/TwoDigits.h"

#include <algorithm>
#include <cmath>

namespace cuebright {

namespace {

constexpr Seconds kTickInterval {1.0};
constexpr Seconds kTickTolerance {0.1};
constexpr Seconds kCriticalTime {60};
constexpr Seconds kWarningTime {300};

/// No tick comes exactly on time. Without this, a countdown whose tick is a millisecond late would skip a second and
/// end a second early.
Seconds snappedToTick(Seconds time)
{
    const auto due = std::round(time / kTickInterval) * kTickInterval;
    return abs(time - due) <= kTickTolerance ? due : time;
}

} // namespace

TimerManager::TimerManager(Clock& clock, MainQueue& mainQueue)
    : m_clock(clock)
    , m_mainQueue(mainQueue)
{
}

Seconds TimerManager::remaining() const { return std::max(m_countdownDuration - m_elapsed, Seconds(0)); }

Seconds TimerManager::displayTime() const { return m_mode == Mode::Countdown ? remaining() : m_elapsed; }

std::string TimerManager::displayString() const
{
    const auto seconds = static_cast<std::int64_t>(displayTime().count());
    return twoDigits(seconds / 60) + ":" + twoDigits(seconds % 60);
}

TimerManager::Urgency TimerManager::urgency() const
{
    if (m_mode != Mode::Countdown || !isRunning())
        return Urgency::Normal;
    if (m_countdownDuration <= m_elapsed)
        return Urgency::Expired;
    if (remaining() <= kCriticalTime)
        return Urgency::Critical;
    return remaining() <= kWarningTime ? Urgency::Warning : Urgency::Normal;
}

bool TimerManager::isCountdownOf(std::int64_t minutes) const
{
    return m_mode == Mode::Countdown && static_cast<std::int64_t>(m_countdownDuration.count()) == minutes * 60;
}

void TimerManager::start()
{
    willChange.notify();
    m_elapsed = Seconds(0);
    m_accumulated = Seconds(0);
    m_startDate = m_clock.uptime();
    m_runState = RunState::Running;
    scheduleTimer();
}

void TimerManager::pause()
{
    willChange.notify();
    if (m_startDate)
        setElapsed(m_accumulated + (m_clock.uptime() - *m_startDate));
    m_accumulated = m_elapsed;
    m_startDate.reset();
    m_timer.cancel();
    m_runState = RunState::Paused;
}

void TimerManager::resume()
{
    willChange.notify();
    m_startDate = m_clock.uptime();
    m_runState = RunState::Running;
    scheduleTimer();
}

void TimerManager::toggle()
{
    switch (m_runState) {
    case RunState::Stopped:
        return start();
    case RunState::Running:
        return pause();
    case RunState::Paused:
        return resume();
    }
}

void TimerManager::reset()
{
    willChange.notify();
    m_timer.cancel();
    m_elapsed = Seconds(0);
    m_accumulated = Seconds(0);
    m_startDate.reset();
    m_runState = RunState::Stopped;
}

void TimerManager::setCountdown(std::int64_t minutes)
{
    reset();
    willChange.notify();
    m_mode = Mode::Countdown;
    m_countdownDuration = Seconds(static_cast<double>(minutes * 60));
}

void TimerManager::setStopwatch()
{
    reset();
    willChange.notify();
    m_mode = Mode::Stopwatch;
}

void TimerManager::scheduleTimer()
{
    m_timer = m_mainQueue.every(kTickInterval, [this] { tick(); });
}

void TimerManager::tick()
{
    if (!m_startDate)
        return;
    willChange.notify();
    setElapsed(m_accumulated + snappedToTick(m_clock.uptime() - *m_startDate));
    if (m_mode == Mode::Countdown && m_countdownDuration <= m_elapsed)
        m_timer.cancel();
}

void TimerManager::setElapsed(Seconds elapsed)
{
    m_elapsed = m_mode == Mode::Countdown ? std::min(elapsed, m_countdownDuration) : elapsed;
}

} // namespace cuebright
