#include "app/AfterFirstFrame.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace cuebright {

namespace {

constexpr int kFrameTimeout = 2000; // milliseconds

} // namespace

AfterFirstFrame::AfterFirstFrame(const QWidget& window, std::function<void()> work)
    : m_window(window.windowHandle())
    , m_work(std::move(work))
{
    m_window->installEventFilter(this);
    m_timeout.start(kFrameTimeout, this);
}

bool AfterFirstFrame::eventFilter(QObject*, QEvent* event)
{
    // The widgets draw while the window handles this event, so the work is left to the next turn of the event loop.
    if (event->type() == QEvent::Expose && m_window->isExposed()) {
        m_window->removeEventFilter(this);
        m_timeout.start(0, this);
    }
    return false;
}

void AfterFirstFrame::timerEvent(QTimerEvent*) { finish(); }

void AfterFirstFrame::finish()
{
    m_timeout.stop();
    if (m_window)
        m_window->removeEventFilter(this);
    if (const auto work = std::exchange(m_work, nullptr))
        work();
}

} // namespace cuebright
