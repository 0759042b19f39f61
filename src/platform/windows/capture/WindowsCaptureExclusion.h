#pragma once

#include "platform/CaptureExclusion.h"
#include "platform/WindowSystem.h"
#include "platform/windows/capture/DisplayAffinity.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace cuebright {

/// Keeps the program's windows out of captures by their display affinity. Tested against a fake, not run on Windows
/// yet.
///
/// The state is the worst affinity read back from the windows; it is not settled before the first one appears. Windows
/// are not excluded over a remote desktop, because their user would not see them.
class WindowsCaptureExclusion final : public CaptureExclusion {
public:
    /// `affinity` must outlive this.
    explicit WindowsCaptureExclusion(DisplayAffinity& affinity);

    State state() override { return readBack(); }
    bool isSettled() override { return !m_windows.empty(); }
    void reapplyIfLost() override;

    /// Call for every top-level window when it is created, at each show and when it is exposed: Windows can reset the
    /// affinity when a window is hidden and shown, or becomes translucent.
    void windowAppears(WindowSystem::WindowId window);
    void windowGoes(WindowSystem::WindowId window);

    /// Call when a remote desktop may have been connected or disconnected.
    void sessionChanged();

private:
    [[nodiscard]] std::uint32_t wantedAffinity();
    [[nodiscard]] State readBack();
    [[nodiscard]] State stateOf(std::optional<std::uint32_t> affinity) const;
    void apply(WindowSystem::WindowId window);
    void applyToAll();
    void update();

    DisplayAffinity& m_affinity;
    bool m_canExclude;
    std::vector<WindowSystem::WindowId> m_windows;
    State m_state = State::Unknown; ///< as last notified
    bool m_wasSettled = false;
    bool m_wasExcluded = false;
};

} // namespace cuebright
