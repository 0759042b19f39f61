#include "app/Application.h"

#include <QEvent>

namespace cuebright {

bool Application::event(QEvent* event)
{
    if (event->type() != QEvent::Quit || !quitRequested)
        return QApplication::event(event);
    quitRequested();
    return true;
}

} // namespace cuebright
