#include "platform/qt/QtMainQueue.h"

#include <QMetaObject>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <limits>
#include <utility>

namespace cuebright {

namespace {

std::chrono::milliseconds toMilliseconds(Seconds time, std::chrono::milliseconds shortest)
{
    constexpr Seconds kLongest = std::chrono::milliseconds(std::numeric_limits<int>::max());
    return std::max(shortest, std::chrono::round<std::chrono::milliseconds>(std::clamp(time, Seconds(0), kLongest)));
}

void end(QTimer* timer)
{
    timer->stop();
    timer->disconnect(); // lets the work go now
    timer->deleteLater(); // it may be its own work that ends it
}

} // namespace

void QtMainQueue::post(std::function<void()> work)
{
    QMetaObject::invokeMethod(&m_owner, std::move(work), Qt::QueuedConnection);
}

PendingTask QtMainQueue::after(Seconds delay, std::function<void()> work)
{
    auto* timer = new QTimer(&m_owner);
    timer->setSingleShot(true);
    timer->setInterval(toMilliseconds(delay, std::chrono::milliseconds(0)));
    QObject::connect(timer, &QTimer::timeout, timer, [timer, work = std::move(work)] {
        end(timer);
        work();
    });
    return start(timer);
}

PendingTask QtMainQueue::every(Seconds interval, std::function<void()> work)
{
    auto* timer = new QTimer(&m_owner);
    timer->setInterval(toMilliseconds(interval, std::chrono::milliseconds(1)));
    QObject::connect(timer, &QTimer::timeout, timer, std::move(work));
    return start(timer);
}

PendingTask QtMainQueue::start(QTimer* timer)
{
    timer->setTimerType(Qt::PreciseTimer);
    timer->start();
    return PendingTask([waiting = QPointer<QTimer>(timer)] {
        if (waiting)
            end(waiting);
    });
}

} // namespace cuebright
