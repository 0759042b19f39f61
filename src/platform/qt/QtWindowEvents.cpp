#include "platform/qt/QtWindowEvents.h"

#include <QCoreApplication>
#include <QPlatformSurfaceEvent>
#include <QWindow>

namespace cuebright {

namespace {

bool isDestruction(const QEvent* event)
{
    return static_cast<const QPlatformSurfaceEvent*>(event)->surfaceEventType()
        == QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed;
}

/// Not for windows inside others, nor for those without a native window.
void notifyIfTopLevel(const Signal<WindowSystem::WindowId>& signal, const QWindow& window)
{
    if (window.isTopLevel() && window.handle())
        signal.notify(window.winId());
}

} // namespace

QtWindowEvents::QtWindowEvents() { QCoreApplication::instance()->installEventFilter(this); }

bool QtWindowEvents::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWindowType())
        return false;
    const auto& window = *static_cast<QWindow*>(watched);
    switch (event->type()) {
    case QEvent::PlatformSurface:
        notifyIfTopLevel(isDestruction(event) ? topLevelGoes : topLevelAppears, window);
        break;
    case QEvent::Show:
    case QEvent::Expose:
        notifyIfTopLevel(topLevelAppears, window);
        break;
    case QEvent::ThemeChange:
        themeChanged.notify();
        break;
    default:
        if (event->isInputEvent())
            inputArrives.notify();
    }
    return false;
}

} // namespace cuebright
