#pragma once

#include "foundation/WeakTarget.h"
#include "platform/MainQueue.h"

#include <functional>
#include <utility>

namespace cuebright {

/// Runs work after the current event, once however often it is asked for. The work does not run any more when this is
/// gone.
class CoalescedCall final {
public:
    /// `mainQueue` must outlive this.
    CoalescedCall(MainQueue& mainQueue, std::function<void()> work)
        : m_mainQueue(mainQueue)
        , m_work(std::move(work))
    {
    }

    void request()
    {
        if (std::exchange(m_isRequested, true))
            return;
        m_mainQueue.post(m_weakTarget.guard([this] {
            m_isRequested = false;
            m_work();
        }));
    }

private:
    MainQueue& m_mainQueue;
    std::function<void()> m_work;
    bool m_isRequested = false;
    WeakTarget m_weakTarget;
};

} // namespace cuebright
