#pragma once

#include "foundation/Signal.h"
#include "platform/WindowSystem.h"

#include <QObject>

namespace cuebright {

/// Tells of every top-level window of the program, menus and tooltips included, before anybody can see it. Windows that
/// the system itself makes for the program (its file dialog, a native menu) are not among them.
///
/// Make it after the application and before the first window.
class QtTopLevelWatch final : public QObject {
public:
    QtTopLevelWatch();

    /// The window was made, is about to show, or shows: several times for one show.
    Signal<WindowSystem::WindowId> appears;
    /// The window is about to be destroyed.
    Signal<WindowSystem::WindowId> goes;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace cuebright
