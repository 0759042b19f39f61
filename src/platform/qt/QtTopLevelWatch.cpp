#include "platform/qt/QtTopLevelWatch.h"

#include <QCoreApplication>
#include <QPlatformSurfaceEvent>
#include <QWindow>

namespace cuebright {

namespace {

/// Absent (0) where the window is inside another or has no counterpart in the system.
WindowSystem::WindowId topLevelId(QObject* watched)
{
    auto* const window = watched->isWindowType() ? static_cast<QWindow*>(watched) : nullptr;
    return window && window->isTopLevel() && window->handle() ? window->winId() : 0;
}

bool isDestruction(const QEvent* event)
{
    return static_cast<const QPlatformSurfaceEvent*>(event)->surfaceEventType()
        == QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed;
}

} // namespace

QtTopLevelWatch::QtTopLevelWatch() { QCoreApplication::instance()->installEventFilter(this); }

bool QtTopLevelWatch::eventFilter(QObject* watched, QEvent* event)
{
    const auto type = event->type();
    if (type != QEvent::PlatformSurface && type != QEvent::Show && type != QEvent::Expose)
        return false;
    const auto window = topLevelId(watched);
    if (window == 0)
        return false;
    if (type == QEvent::PlatformSurface && isDestruction(event))
        goes.notify(window);
    else
        appears.notify(window);
    return false;
}

} // namespace cuebright
