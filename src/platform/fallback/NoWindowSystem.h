#pragma once

#include "platform/WindowSystem.h"

namespace cuebright {

/// For a system on which the toolkit's own means are all there is.
class NoWindowSystem final : public WindowSystem {
public:
    void keepAboveFullScreen(WindowId) override { }
    void release(WindowId) override { }
    void setBlurBehind(WindowId, bool) override { }
};

} // namespace cuebright
