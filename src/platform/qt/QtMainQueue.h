#pragma once

#include "platform/MainQueue.h"

#include <QObject>

class QTimer;

namespace cuebright {

/// Qt's event loop of the thread that makes it. Times are kept to the millisecond.
///
/// What still waits when the queue goes away never runs; handles may outlive it.
class QtMainQueue final : public MainQueue {
public:
    void post(std::function<void()> work) override;
    PendingTask after(Seconds delay, std::function<void()> work) override;
    PendingTask every(Seconds interval, std::function<void()> work) override;

private:
    PendingTask start(QTimer* timer);

    QObject m_owner; ///< parent of every timer, target of every posted call
};

} // namespace cuebright
