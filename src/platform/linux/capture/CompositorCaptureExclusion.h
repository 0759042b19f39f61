#pragma once

#include "platform/CaptureExclusion.h"
#include "platform/MainQueue.h"

namespace cuebright {

/// Base of the adapters that ask a Wayland compositor: the state that it confirmed, and a timeout for its replies.
class CompositorCaptureExclusion : public CaptureExclusion {
public:
    /// Sends the first request. Call once.
    virtual void start() = 0;

    State state() final { return m_state; }
    bool isSettled() final { return m_isSettled; }

protected:
    explicit CompositorCaptureExclusion(MainQueue& mainQueue);

    /// Calls `giveUp` in three seconds, unless `settle` is called before. Restarts a timeout that is running.
    void startTimeout();

    /// The compositor is being asked: `Unknown` until `settle`.
    void unsettle() { setState(State::Unknown, false); }
    void settle(State state);

    /// Abandons what is under way and settles as `Unknown`.
    virtual void giveUp() = 0;

private:
    void setState(State state, bool isSettled);

    MainQueue& m_mainQueue;
    State m_state = State::Unknown;
    bool m_isSettled = false;
    PendingTask m_timeout;
};

} // namespace cuebright
