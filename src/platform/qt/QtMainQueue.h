#pragma once

#include "platform/MainQueue.h"

#include <QObject>

class QTimer;

namespace cuebright {

/// Qt's event loop of the main thread. Times are kept to the millisecond.
///
/// What still waits when the queue is destroyed never runs.
class QtMainQueue final : public MainQueue {
public:
    QtMainQueue();

    PendingTask post(std::function<void()> work) override;
    PendingTask after(Seconds delay, std::function<void()> work) override;
    PendingTask every(Seconds interval, std::function<void()> work) override;

private:
    /// Parent of every timer, target of every posted call.
    class Owner final : public QObject {
    protected:
        bool eventFilter(QObject* watched, QEvent* event) override;
    };

    PendingTask start(QTimer* timer);

    Owner m_owner;
};

} // namespace cuebright
