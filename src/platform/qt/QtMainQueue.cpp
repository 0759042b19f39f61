#include "platform/qt/QtMainQueue.h"

#include <QCoreApplication>
#include <QEvent>
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

QtMainQueue::QtMainQueue() { QCoreApplication::instance()->installEventFilter(&m_owner); }

/// The toolkit delivers all input that has come while it was busy in one go, and what was posted only then: keys would
/// reach what the keys before them have put away. Windows see input first, and only once.
bool QtMainQueue::Owner::eventFilter(QObject* watched, QEvent* event)
{
    if (event->isInputEvent() && watched->isWindowType())
        QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    return false;
}

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
