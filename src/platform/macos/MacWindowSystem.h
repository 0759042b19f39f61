#pragma once

#include "platform/WindowSystem.h"

namespace cuebright {

/// Lets the panel join the spaces of full-screen windows. Not compiled or run on a Mac yet; whether macOS lets a window
/// of an ordinary program, which is no non-activating panel, into the full-screen space of another one is to be tried.
///
/// No glass: the toolkit's view fills the window, and nothing can be put behind it without taking it apart.
class MacWindowSystem final : public WindowSystem {
public:
    void keepAboveFullScreen(WindowId window) override;
    void release(WindowId window) override;
    void setBlurBehind(WindowId, bool) override { }
};

} // namespace cuebright
