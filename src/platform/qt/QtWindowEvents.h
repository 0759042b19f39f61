#pragma once

#include "foundation/Signal.h"
#include "platform/WindowSystem.h"

#include <QObject>

namespace cuebright {

/// Events of the program's windows that concern more than the window itself. One filter on the application sees them,
/// because Qt notifies nobody of a new window, and menus and tooltips are windows too.
///
/// Make it after the application and before the first window. Windows that the system makes for the program (a native
/// file dialog or menu) are not seen.
class QtWindowEvents final : public QObject {
public:
    QtWindowEvents();

    /// A window is about to receive a key press, a click or other input of the user.
    Signal<> inputArrives;

    /// The desktop's theme may have changed; once for each window.
    Signal<> themeChanged;

    /// A top-level window was created, is about to be shown, or has been exposed: several times for each show, the
    /// first before it is visible.
    Signal<WindowSystem::WindowId> topLevelAppears;
    /// A top-level window is about to be destroyed.
    Signal<WindowSystem::WindowId> topLevelGoes;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace cuebright
