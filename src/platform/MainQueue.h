#pragma once

#include "foundation/Seconds.h"

#include <functional>
#include <utility>

namespace cuebright {

/// Work that waits on the main queue. Letting the handle go does not cancel the work.
class PendingTask final {
public:
    PendingTask() = default;
    explicit PendingTask(std::function<void()> cancel)
        : m_cancel(std::move(cancel))
    {
    }

    /// The work does not run (again). Nothing happens when it has run, was cancelled before, or there is none.
    void cancel()
    {
        if (auto cancelNow = std::exchange(m_cancel, nullptr))
            cancelNow();
    }

private:
    std::function<void()> m_cancel;
};

/// Runs deferred work on the main thread, one piece after the other. Work holds its target weakly (`WeakTarget`).
class MainQueue {
public:
    virtual ~MainQueue() = default;

    /// Runs `work` after the current event, and before the user's next key or click reaches what is inside a window,
    /// even one that waits already. So it must be quick, and must not destroy windows.
    virtual void post(std::function<void()> work) = 0;

    /// Runs `work` once, `delay` from now.
    virtual PendingTask after(Seconds delay, std::function<void()> work) = 0;

    /// Runs `work` every `interval`, first one `interval` from now, until cancelled. Late runs are not made up for.
    virtual PendingTask every(Seconds interval, std::function<void()> work) = 0;
};

} // namespace cuebright
