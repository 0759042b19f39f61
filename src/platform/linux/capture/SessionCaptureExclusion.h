#pragma once

#include "platform/CaptureExclusion.h"

#include <functional>
#include <memory>

namespace cuebright {

class MainQueue;
struct DesktopSession;

/// Who can keep windows out of screen shares in a session, and where nobody can, what is known of it.
enum class CaptureExclusionMethod { KWin, Hyprland, NoneAndVisible, NoneAndUnknown };

[[nodiscard]] CaptureExclusionMethod captureExclusionMethod(const DesktopSession& session);

struct SessionCaptureExclusion {
    std::unique_ptr<CaptureExclusion> exclusion;
    std::function<void()> start; ///< asks the session; call once. Before that no bus and no socket is opened.
};

/// `mainQueue` outlives the result.
[[nodiscard]] SessionCaptureExclusion makeCaptureExclusion(const DesktopSession& session, MainQueue& mainQueue);

} // namespace cuebright
