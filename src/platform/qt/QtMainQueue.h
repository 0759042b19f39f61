#pragma once

#include "foundation/Signal.h"
#include "platform/MainQueue.h"

#include <QObject>

class QTimer;

namespace cuebright {

class QtWindowEvents;

/// Qt's event loop of the main thread. Times have a resolution of 1 ms. Pending work is dropped on destruction; handles
/// may outlive the queue.
class QtMainQueue final : public MainQueue {
public:
    explicit QtMainQueue(QtWindowEvents& windowEvents);

    PendingTask post(std::function<void()> work) override;
    PendingTask after(Seconds delay, std::function<void()> work) override;
    PendingTask every(Seconds interval, std::function<void()> work) override;

private:
    PendingTask start(QTimer* timer);

    QObject m_owner; ///< parent of every timer, receiver of every posted call
    Subscription m_inputSubscription;
};

} // namespace cuebright
