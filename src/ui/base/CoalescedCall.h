#pragma once

#include "platform/MainQueue.h"

#include <functional>
#include <utility>

namespace cuebright {

/// Runs work after the current event, once however often it is requested. Destruction cancels the request.
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
        m_pendingCall = m_mainQueue.post([this] {
            m_isRequested = false;
            m_work();
        });
    }

private:
    MainQueue& m_mainQueue;
    std::function<void()> m_work;
    bool m_isRequested = false;
    PendingTask m_pendingCall;
};

} // namespace cuebright
