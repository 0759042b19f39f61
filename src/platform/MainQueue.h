#pragma once

#include "foundation/Seconds.h"
#include "foundation/Signal.h"

#include <functional>
#include <utility>

namespace cuebright {

/// Owns work that waits on the main queue: cancels it when destroyed or replaced, also from inside that work. May
/// outlive the queue.
class [[nodiscard]] PendingTask final {
public:
    PendingTask() = default;
    explicit PendingTask(std::function<void()> cancel)
        : m_waiting(std::move(cancel))
    {
    }

    /// The work does not run (again). Does nothing if it has run, was cancelled before, or there is none.
    void cancel() { m_waiting.end(); }

private:
    Subscription m_waiting;
};

/// Runs deferred work on the main thread, one piece after the other, unless its `PendingTask` goes away first.
class MainQueue {
public:
    virtual ~MainQueue() = default;

    /// Runs `work` after the current event, and before a widget receives the next key or click, even one that is queued
    /// already.
    ///
    /// `work` must be quick, because that key waits for it, and must not destroy windows, because the key may already
    /// be on its way to one.
    virtual PendingTask post(std::function<void()> work) = 0;

    /// Runs `work` once, `delay` from now.
    virtual PendingTask after(Seconds delay, std::function<void()> work) = 0;

    /// Runs `work` every `interval`, first one `interval` from now, until cancelled. Late runs are not made up for.
    virtual PendingTask every(Seconds interval, std::function<void()> work) = 0;
};

} // namespace cuebright
