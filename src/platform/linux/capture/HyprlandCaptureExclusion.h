#pragma once

#include "platform/CaptureExclusion.h"

#include "platform/MainQueue.h"
#include "platform/linux/capture/HyprlandIpc.h"
#include "platform/linux/capture/HyprlandMessages.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace cuebright {

/// Has Hyprland (0.50 and later) capture the program's windows as black boxes, by a window rule that is sent again
/// whenever the configuration is reloaded. From 0.53 on, the program's windows are asked whether the rule holds, and as
/// long as there are none, it is asked again when one comes.
///
/// Made from Hyprland's documentation and tried against a stand-in only: it has not been run on a real Hyprland.
class HyprlandCaptureExclusion final : public CaptureExclusion {
public:
    HyprlandCaptureExclusion(std::unique_ptr<HyprlandIpc> ipc, MainQueue& mainQueue);

    /// Sends the rule for the first time. Call once.
    void start();

    State state() override { return m_state; }
    bool isSettled() override { return m_isSettled; }
    /// Nothing is ever `Excluded` here.
    void reapplyIfLost() override { }

private:
    void sendRuleAnew();
    void learnLanguage(HyprlandVersion version);
    void sendRule(HyprlandVersion version, HyprlandLanguage language);
    void startTimeout();
    void lookUpWindows();
    void verify(std::vector<std::string> addresses);
    void request(const std::string& text, std::function<void(const std::string&)> answered);
    void giveUp();
    void setState(State state, bool isSettled);
    void settle(State state);

    std::unique_ptr<HyprlandIpc> m_ipc;
    MainQueue& m_mainQueue;
    State m_state = State::Unknown;
    bool m_isSettled = false;
    bool m_isLost = false;
    bool m_isUnverified = false; ///< the rule was accepted while there was no window to ask
    bool m_hasNewWindow = false; ///< since the windows were last looked up
    PendingTask m_deadline;
    Subscription m_reloadSubscription;
    Subscription m_windowSubscription;
    Subscription m_lostSubscription;
};

} // namespace cuebright
