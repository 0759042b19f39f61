#pragma once

#include "platform/CaptureExclusion.h"

#include <memory>

namespace cuebright {

class MainQueue;
struct DesktopSession;

/// How windows are kept out of screen shares in a session, or what is known where that is impossible.
enum class CaptureExclusionMethod { KWin, Hyprland, NoneAndVisible, NoneAndUnknown };

[[nodiscard]] CaptureExclusionMethod captureExclusionMethod(const DesktopSession& session);

/// Begins to ask the session, without waiting for its answer. `mainQueue` must outlive the result.
[[nodiscard]] std::unique_ptr<CaptureExclusion> startCaptureExclusion(
    const DesktopSession& session, MainQueue& mainQueue);

} // namespace cuebright
