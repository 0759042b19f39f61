#pragma once

#include "platform/CaptureExclusion.h"
#include "platform/WindowSystem.h"
#include "platform/windows/capture/DisplayAffinity.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace cuebright {

/// Keeps the program's windows out of captures through their display affinity. Tested against a fake, not run on a
/// Windows machine yet.
///
/// Its state is what Windows reads back for the windows it was told of; the worst one counts. Before the first one it
/// is not settled. Over a remote desktop the windows stay in, or their own user would not see them.
class WindowsCaptureExclusion final : public CaptureExclusion {
public:
    /// `affinity` must outlive this.
    explicit WindowsCaptureExclusion(DisplayAffinity& affinity);

    State state() override { return readBack(); }
    bool isSettled() override { return !m_windows.empty(); }
    void reapplyIfLost() override;

    /// Call for every top-level window when it is made, at each show and once it shows: hide and show, and becoming
    /// translucent, can lose the affinity.
    void windowAppears(WindowSystem::WindowId window);
    void windowGoes(WindowSystem::WindowId window);

    /// Call when a remote desktop may have been connected or left.
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
    State m_state = State::Unknown; ///< as told to listeners
    bool m_wasSettled = false;
    bool m_wasExcluded = false;
};

} // namespace cuebright
