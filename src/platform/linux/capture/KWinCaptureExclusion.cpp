#include "platform/linux/capture/KWinCaptureExclusion.h"

#include "platform/linux/capture/KWinScript.h"

#include <utility>

#include <unistd.h>

namespace cuebright {

namespace {

constexpr std::string_view kPlugin = "cuebright";

} // namespace

KWinCaptureExclusion::KWinCaptureExclusion(
    KWinScripting::Connect connect, const std::filesystem::path& runtimeDirectory, MainQueue& mainQueue)
    : CompositorCaptureExclusion(mainQueue)
    , m_scripting(std::move(connect), runtimeDirectory)
    , m_availabilitySubscription(m_scripting.availabilityChanged.subscribe(
          [this](KWinScripting::Availability availability) { onAvailabilityChanged(availability); }))
    , m_reportSubscription(m_scripting.reported.subscribe([this](std::string_view word) { onReport(word); }))
{
}

KWinCaptureExclusion::~KWinCaptureExclusion()
{
    if (m_isPresent)
        m_scripting.unload(kPlugin, {});
}

void KWinCaptureExclusion::start()
{
    beginAttempt();
    m_scripting.start();
}

void KWinCaptureExclusion::reapplyIfLost()
{
    if (!m_wasExcluded || state() == State::Excluded)
        return;
    m_isReapplying = true;
    if (m_isPresent && isSettled())
        load();
}

void KWinCaptureExclusion::onAvailabilityChanged(KWinScripting::Availability availability)
{
    m_isPresent = availability == KWinScripting::Availability::Present;
    if (m_isPresent)
        return load();
    beginAttempt();
    giveUp();
}

void KWinCaptureExclusion::beginAttempt()
{
    ++m_attempt;
    m_isRunning = false;
    startTimeout();
}

void KWinCaptureExclusion::load()
{
    beginAttempt();
    // KWin would refuse the script while a copy from an earlier run is loaded.
    m_scripting.unload(kPlugin, [this, attempt = m_attempt](bool wasAnswered) {
        if (attempt != m_attempt)
            return;
        if (!wasAnswered)
            return giveUp();
        m_scripting.load(
            kwinScript(::getpid(), m_scripting.busName()), kPlugin, [this, attempt](std::optional<int> script) {
                if (attempt != m_attempt)
                    return;
                if (!script || *script < 0)
                    return giveUp();
                run(*script);
            });
    });
    unsettle();
}

void KWinCaptureExclusion::run(int script)
{
    m_isRunning = true; // its report may arrive before the reply
    m_scripting.run(script, [this, attempt = m_attempt](bool isRunning) {
        if (attempt == m_attempt && !isRunning && !isSettled())
            giveUp();
    });
}

void KWinCaptureExclusion::onReport(std::string_view word)
{
    if (!m_isRunning)
        return;
    if (word == "refused" || word == "unsupported")
        return settle(State::Visible);
    if (word != "omitted")
        return giveUp();
    m_wasExcluded = true;
    const bool wasReapplying = std::exchange(m_isReapplying, false);
    settle(State::Excluded);
    if (wasReapplying)
        reapplied.notify();
}

void KWinCaptureExclusion::giveUp()
{
    m_isReapplying = false; // a success long after the show that asked for it would confuse the user
    settle(State::Unknown);
}

} // namespace cuebright
