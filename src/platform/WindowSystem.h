#pragma once

#include "foundation/Signal.h"

#include <cstdint>

namespace cuebright {

/// What floating windows need from the window system beyond what Qt offers.
class WindowSystem {
public:
    /// The native window handle.
    using WindowId = std::uintptr_t;

    virtual ~WindowSystem() = default;

    /// Keeps the window above a full-screen window that has the focus, without taking the focus from it. Call before
    /// each show.
    virtual void keepAboveFullScreen(WindowId window) = 0;

    /// Ends what `keepAboveFullScreen` began. Call before the window is destroyed.
    virtual void release(WindowId window) = 0;

    /// Blurs what is behind the window, where the system supports it. Lasts while the window exists.
    virtual void setBlurBehind(WindowId window, bool isOn) = 0;

    /// Emitted when a window kept above was minimised only because the full-screen window below it was.
    /// `PanelController` then shows the panel again.
    Signal<WindowId> minimisedWithFullScreen;
};

} // namespace cuebright
