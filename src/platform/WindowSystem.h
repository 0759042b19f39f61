#pragma once

#include "foundation/Signal.h"

#include <cstdint>

namespace cuebright {

/// What a floating window needs of the window system and the toolkit does not give.
class WindowSystem {
public:
    /// The window's handle as the system has it.
    using WindowId = std::uintptr_t;

    virtual ~WindowSystem() = default;

    /// Keeps the window above a full-screen window that has the keyboard, without taking the keyboard from it. Call
    /// before the window is put on the screen, each time.
    virtual void keepAboveFullScreen(WindowId window) = 0;

    /// Ends what `keepAboveFullScreen` began. Call before the window is destroyed.
    virtual void release(WindowId window) = 0;

    /// Blurs what shows through the window, where the system can. Lasts while the window exists.
    virtual void setBlurBehind(WindowId window, bool isOn) = 0;

    /// A window kept above was minimised, and not for its own sake: together with the full-screen window below it.
    Signal<WindowId> minimisedWithFullScreen;
};

} // namespace cuebright
