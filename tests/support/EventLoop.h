#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>

#include <chrono>

namespace cuebright::test {

/// Runs everything that is due now.
inline void processEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Runs the event loop until the condition holds; false if that takes longer than the deadline.
template <typename Condition>
[[nodiscard]] bool waitUntil(Condition condition, std::chrono::milliseconds deadline = std::chrono::seconds(10))
{
    const QDeadlineTimer end(deadline);
    QTimer look; // wakes the loop regularly
    look.start(std::chrono::milliseconds(2));
    while (!condition()) {
        if (end.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        processEvents();
    }
    return true;
}

} // namespace cuebright::test
