#include "app/QuitEvents.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace cuebright {

QuitEvents::QuitEvents(std::function<void()> quit)
    : m_quit(std::move(quit))
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool QuitEvents::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Quit || watched != QCoreApplication::instance())
        return false;
    m_quit();
    return true;
}

} // namespace cuebright
