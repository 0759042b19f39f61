#include "platform/qt/QtMainQueue.h"

#include "platform/qt/QtWindowEvents.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMetaObject>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <limits>
#include <memory>
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
    timer->disconnect(); // releases the work now
    timer->deleteLater(); // its own work may be running
}

} // namespace

// Qt delivers queued input before posted events, so a key could reach a widget that the previous key closed.
QtMainQueue::QtMainQueue(QtWindowEvents& windowEvents)
    : m_inputSubscription(
        windowEvents.inputArrives.subscribe([this] { QCoreApplication::sendPostedEvents(&m_owner, QEvent::MetaCall); }))
{
}

PendingTask QtMainQueue::post(std::function<void()> work)
{
    const auto waiting = std::make_shared<std::function<void()>>(std::move(work));
    const auto run = [waiting] {
        if (const auto due = std::exchange(*waiting, nullptr))
            due();
    };
    QMetaObject::invokeMethod(&m_owner, run, Qt::QueuedConnection);
    return PendingTask([waiting] { *waiting = nullptr; });
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
