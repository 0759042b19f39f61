#include "app/FirstFrame.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace cuebright {

namespace {

constexpr int kPatience = 2000; // milliseconds

} // namespace

FirstFrame::FirstFrame(const QWidget& window, std::function<void()> work)
    : m_window(window.windowHandle())
    , m_work(std::move(work))
{
    m_window->installEventFilter(this);
    m_patience.start(kPatience, this);
}

bool FirstFrame::eventFilter(QObject*, QEvent* event)
{
    // The widgets draw while the window handles this event; the work comes after it.
    if (event->type() == QEvent::Expose && m_window->isExposed()) {
        m_window->removeEventFilter(this);
        m_patience.start(0, this);
    }
    return false;
}

void FirstFrame::timerEvent(QTimerEvent*) { finish(); }

void FirstFrame::finish()
{
    m_patience.stop();
    if (m_window)
        m_window->removeEventFilter(this);
    if (const auto work = std::exchange(m_work, nullptr))
        work();
}

} // namespace cuebright
