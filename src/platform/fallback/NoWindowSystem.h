#pragma once

#include "platform/WindowSystem.h"

namespace cuebright {

/// For a system that offers no more than Qt.
class NoWindowSystem final : public WindowSystem {
public:
    void keepAboveFullScreen(WindowId) override { }
    void release(WindowId) override { }
    void setBlurBehind(WindowId, bool) override { }
};

} // namespace cuebright
