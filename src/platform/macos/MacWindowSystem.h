#pragma once

#include "platform/WindowSystem.h"

namespace cuebright {

/// Lets the panel join the spaces of full-screen windows. Not compiled or run on a Mac yet; untried whether macOS
/// allows that for a window that is not a non-activating panel. Blur is not implemented: Qt's view fills the window.
class MacWindowSystem final : public WindowSystem {
public:
    void keepAboveFullScreen(WindowId window) override;
    void release(WindowId window) override;
    void setBlurBehind(WindowId, bool) override { }
};

} // namespace cuebright
