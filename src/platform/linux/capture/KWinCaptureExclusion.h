#pragma once

#include "platform/linux/capture/CompositorCaptureExclusion.h"
#include "platform/linux/capture/KWinScripting.h"

#include <string_view>

namespace cuebright {

/// Leaves the program's windows out of screen shares under KWin (Plasma 6.6 and later, Wayland sessions, XWayland
/// windows included), by a script that stays loaded in KWin while this object lives.
///
/// Written from KWin's documentation and tested against a fake; not run with a real KWin yet.
class KWinCaptureExclusion final : public CompositorCaptureExclusion {
public:
    /// The arguments of `KWinScripting`.
    KWinCaptureExclusion(
        KWinScripting::Connect connect, const std::filesystem::path& runtimeDirectory, MainQueue& mainQueue);
    ~KWinCaptureExclusion() override;

    void start() override;
    void reapplyIfLost() override;

private:
    void onAvailabilityChanged(KWinScripting::Availability availability);
    void beginAttempt();
    void load();
    void run(int script);
    void onReport(std::string_view word);
    void giveUp() override;

    KWinScripting m_scripting;
    bool m_wasExcluded = false;
    bool m_isReapplying = false;
    bool m_isPresent = false; ///< KWin, on the bus
    bool m_isRunning = false; ///< the script of this attempt: reports before that come from an old copy
    int m_attempt = 0; ///< replies to an earlier one are ignored
    Subscription m_availabilitySubscription;
    Subscription m_reportSubscription;
};

} // namespace cuebright
