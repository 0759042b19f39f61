#include "platform/linux/capture/CompositorCaptureExclusion.h"

namespace cuebright {

namespace {

constexpr Seconds kReplyTimeout {3};

} // namespace

CompositorCaptureExclusion::CompositorCaptureExclusion(MainQueue& mainQueue)
    : m_mainQueue(mainQueue)
{
}

void CompositorCaptureExclusion::startTimeout()
{
    m_timeout = m_mainQueue.after(kReplyTimeout, [this] { giveUp(); });
}

void CompositorCaptureExclusion::settle(State state)
{
    m_timeout.cancel();
    setState(state, true);
}

void CompositorCaptureExclusion::setState(State state, bool isSettled)
{
    if (state == m_state && isSettled == m_isSettled)
        return;
    m_state = state;
    m_isSettled = isSettled;
    changed.notify();
}

} // namespace cuebright
