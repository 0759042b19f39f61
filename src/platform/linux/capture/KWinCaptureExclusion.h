#pragma once

#include "platform/CaptureExclusion.h"

#include "platform/MainQueue.h"
#include "platform/linux/capture/KWinScripting.h"

#include <memory>
#include <string_view>

namespace cuebright {

/// Leaves the program's windows out of screen shares under KWin (Plasma 6.6 and later, Wayland sessions, windows that
/// come through XWayland included), by a script that stays in KWin while this lives.
///
/// Made from KWin's documentation and tried against a stand-in only: it has not been run on a real KWin.
class KWinCaptureExclusion final : public CaptureExclusion {
public:
    KWinCaptureExclusion(std::unique_ptr<KWinScripting> scripting, MainQueue& mainQueue);
    ~KWinCaptureExclusion() override;

    /// Asks KWin for the first time. Call once.
    void start();

    State state() override { return m_state; }
    bool isSettled() override { return m_isSettled; }
    void reapplyIfLost() override;

private:
    void followCompositor(KWinScripting::Availability availability);
    void beginAttempt();
    void load();
    void run(int script);
    void takeReport(std::string_view word);
    void setState(State state, bool isSettled);
    void settle(State state);

    std::unique_ptr<KWinScripting> m_scripting;
    MainQueue& m_mainQueue;
    State m_state = State::Unknown;
    bool m_isSettled = false;
    bool m_wasExcluded = false;
    bool m_isPresent = false;
    bool m_isRunning = false; ///< what is reported comes from the script of this attempt
    int m_attempt = 0; ///< replies to an earlier one are not for us any more
    PendingTask m_deadline;
    bool m_isReapplying = false;
    Subscription m_availabilitySubscription;
    Subscription m_reportSubscription;
};

} // namespace cuebright
