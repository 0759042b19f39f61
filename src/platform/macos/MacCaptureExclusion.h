#pragma once

#include "platform/CaptureExclusion.h"
#include "platform/WindowSystem.h"

#include <vector>

namespace cuebright {

/// Sets every window's sharing type to none. Not compiled or run on a Mac yet.
///
/// ScreenCaptureKit, which most programs use from macOS 15 on, ignores it. So the state is never `Excluded`: it is
/// `Visible` there, and `Unknown` before while all windows keep their sharing type.
class MacCaptureExclusion final : public CaptureExclusion {
public:
    MacCaptureExclusion();

    State state() override { return m_state; }

    /// Sets the sharing type again; never emits `reapplied`, because nothing is ever `Excluded`.
    void reapplyIfLost() override;

    /// Call for every top-level window when it is created and at each show.
    void windowAppears(WindowSystem::WindowId window);
    void windowGoes(WindowSystem::WindowId window);

private:
    void applyToAll();

    bool m_isIgnored; ///< by ScreenCaptureKit
    std::vector<WindowSystem::WindowId> m_windows;
    State m_state;
};

} // namespace cuebright
