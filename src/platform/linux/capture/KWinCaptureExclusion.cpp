#include "platform/linux/capture/KWinCaptureExclusion.h"

#include "platform/linux/capture/KWinScript.h"

#include <utility>

#include <unistd.h>

namespace cuebright {

namespace {

constexpr std::string_view kPlugin = "cuebright";
constexpr Seconds kReplyTimeout {3};

} // namespace

KWinCaptureExclusion::KWinCaptureExclusion(std::unique_ptr<KWinScripting> scripting, MainQueue& mainQueue)
    : m_scripting(std::move(scripting))
    , m_mainQueue(mainQueue)
    , m_availabilitySubscription(m_scripting->availabilityChanged.subscribe(
          [this](KWinScripting::Availability availability) { followCompositor(availability); }))
    , m_reportSubscription(m_scripting->reported.subscribe([this](std::string_view word) { takeReport(word); }))
{
}

KWinCaptureExclusion::~KWinCaptureExclusion()
{
    if (m_isPresent)
        m_scripting->unload(kPlugin, {});
}

void KWinCaptureExclusion::start()
{
    beginAttempt();
    m_scripting->start();
}

void KWinCaptureExclusion::reapplyIfLost()
{
    if (!m_wasExcluded || m_state == State::Excluded)
        return;
    m_isReapplying = true;
    if (m_isPresent && m_isSettled)
        load();
}

void KWinCaptureExclusion::followCompositor(KWinScripting::Availability availability)
{
    m_isPresent = availability == KWinScripting::Availability::Present;
    if (m_isPresent)
        return load();
    beginAttempt();
    settle(State::Unknown);
}

void KWinCaptureExclusion::beginAttempt()
{
    ++m_attempt;
    m_isRunning = false;
    m_deadline = m_mainQueue.after(kReplyTimeout, [this] { settle(State::Unknown); });
}

void KWinCaptureExclusion::load()
{
    beginAttempt();
    // A copy that an earlier run left behind would make KWin refuse this one.
    m_scripting->unload(kPlugin, [this, attempt = m_attempt](bool wasAnswered) {
        if (attempt != m_attempt)
            return;
        if (!wasAnswered)
            return settle(State::Unknown);
        m_scripting->load(
            kwinScript(::getpid(), m_scripting->busName()), kPlugin, [this, attempt](std::optional<int> script) {
                if (attempt != m_attempt)
                    return;
                if (!script || *script < 0)
                    return settle(State::Unknown);
                run(*script);
            });
    });
    setState(State::Unknown, false);
}

void KWinCaptureExclusion::run(int script)
{
    m_isRunning = true; // its report may be here before the reply
    m_scripting->run(script, [this, attempt = m_attempt](bool isRunning) {
        if (attempt == m_attempt && !isRunning && !m_isSettled)
            settle(State::Unknown);
    });
}

void KWinCaptureExclusion::takeReport(std::string_view word)
{
    if (!m_isRunning)
        return;
    if (word == "refused" || word == "unsupported")
        return settle(State::Visible);
    if (word != "omitted")
        return settle(State::Unknown);
    m_wasExcluded = true;
    const bool wasReapplying = std::exchange(m_isReapplying, false);
    settle(State::Excluded);
    if (wasReapplying)
        reapplied.notify();
}

void KWinCaptureExclusion::setState(State state, bool isSettled)
{
    if (state == m_state && isSettled == m_isSettled)
        return;
    m_state = state;
    m_isSettled = isSettled;
    changed.notify();
}

void KWinCaptureExclusion::settle(State state)
{
    m_deadline.cancel();
    if (state == State::Unknown)
        m_isReapplying = false; // a success long after the show that asked would only puzzle
    setState(state, true);
}

} // namespace cuebright
