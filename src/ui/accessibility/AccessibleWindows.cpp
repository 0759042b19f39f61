#include "ui/accessibility/AccessibleWindows.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace cuebright {

namespace {

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    // The most derived class is asked for first, so Qt has answered for its own kinds of windows before.
    if (className != QLatin1String("QWidget") || !object->isWidgetType())
        return nullptr;
    const auto widget = static_cast<QWidget*>(object);
    return widget->windowType() == Qt::Window ? new QAccessibleWidget(widget, QAccessible::Window) : nullptr;
}

} // namespace

void presentWindowsToScreenReaders() { QAccessible::installFactory(makeInterface); }

} // namespace cuebright
