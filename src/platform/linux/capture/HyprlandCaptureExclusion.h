#pragma once

#include "platform/linux/capture/CompositorCaptureExclusion.h"
#include "platform/linux/capture/HyprlandIpc.h"
#include "platform/linux/capture/HyprlandMessages.h"

#include <functional>
#include <string>
#include <vector>

namespace cuebright {

/// Has Hyprland (0.50 and later) capture the program's windows as black boxes, by a window rule that is sent again
/// whenever the configuration is reloaded. From 0.53 on, the rule is verified on the program's windows; without any, on
/// the next window that opens.
///
/// Written from Hyprland's documentation and tested against a fake; not run with a real Hyprland yet.
class HyprlandCaptureExclusion final : public CompositorCaptureExclusion {
public:
    /// `directory` as for `HyprlandIpc`.
    HyprlandCaptureExclusion(std::filesystem::path directory, MainQueue& mainQueue);

    void start() override;
    /// Nothing is ever `Excluded` here.
    void reapplyIfLost() override { }

private:
    void askVersion();
    void askLanguage(HyprlandVersion version);
    void sendRule(HyprlandVersion version, HyprlandLanguage language);
    void askWindows();
    void verify(std::vector<std::string> addresses);
    void request(const std::string& text, std::function<void(const std::string&)> answered);
    void giveUp() override;

    HyprlandIpc m_ipc;
    bool m_isUnverified = false; ///< the rule was accepted while the program had no window
    bool m_hasNewWindow = false; ///< since the windows were last asked for
    Subscription m_reloadSubscription;
    Subscription m_windowSubscription;
    Subscription m_lostSubscription;
};

} // namespace cuebright
