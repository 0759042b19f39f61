#pragma once

#include "platform/CaptureExclusion.h"
#include "platform/WindowSystem.h"

#include <vector>

namespace cuebright {

/// Asks for every window's content to be shared with no other program. Not compiled or run on a Mac yet.
///
/// Programs that capture through ScreenCaptureKit do so anyway, from macOS 15 on as a rule. So the answer is never
/// `Excluded`: it is `Visible` there, and `Unknown` before, as long as the windows read back what was asked.
class MacCaptureExclusion final : public CaptureExclusion {
public:
    MacCaptureExclusion();

    State state() override { return m_state; }

    /// Asks again; never reports, because nothing ever was `Excluded` for certain.
    void reapplyIfLost() override;

    /// Call for every top-level window when it is made and at each show.
    void windowAppears(WindowSystem::WindowId window);
    void windowGoes(WindowSystem::WindowId window);

private:
    void applyToAll();

    bool m_isIgnored; ///< by the programs that matter
    std::vector<WindowSystem::WindowId> m_windows;
    State m_state;
};

} // namespace cuebright
