#include "platform/linux/capture/SessionCaptureExclusion.h"

#include "platform/fallback/NoCaptureExclusion.h"
#include "platform/linux/base/DesktopSession.h"
#include "platform/linux/capture/HyprlandCaptureExclusion.h"
#include "platform/linux/capture/KWinCaptureExclusion.h"

#include <algorithm>
#include <string_view>

namespace cuebright {

namespace {

/// Wayland desktops that always capture every window. On niri it depends on the user's rules.
constexpr std::string_view kHideNothing[] = {"GNOME", "sway", "COSMIC", "river", "labwc"};

std::unique_ptr<CaptureExclusion> started(std::unique_ptr<CompositorCaptureExclusion> exclusion)
{
    exclusion->start();
    return exclusion;
}

} // namespace

CaptureExclusionMethod captureExclusionMethod(const DesktopSession& session)
{
    if (!session.isWayland) // every X11 client can read the whole screen
        return CaptureExclusionMethod::NoneAndVisible;
    if (!session.hyprlandInstance.empty())
        return CaptureExclusionMethod::Hyprland;
    if (session.isDesktop("KDE"))
        return CaptureExclusionMethod::KWin;
    const bool isKnown = std::ranges::any_of(kHideNothing, [&](auto name) { return session.isDesktop(name); });
    return isKnown ? CaptureExclusionMethod::NoneAndVisible : CaptureExclusionMethod::NoneAndUnknown;
}

std::unique_ptr<CaptureExclusion> startCaptureExclusion(const DesktopSession& session, MainQueue& mainQueue)
{
    switch (captureExclusionMethod(session)) {
    case CaptureExclusionMethod::KWin:
        return started(
            std::make_unique<KWinCaptureExclusion>(&QDBusConnection::sessionBus, session.runtimeDirectory, mainQueue));
    case CaptureExclusionMethod::Hyprland:
        return started(std::make_unique<HyprlandCaptureExclusion>(
            session.runtimeDirectory / "hypr" / session.hyprlandInstance, mainQueue));
    case CaptureExclusionMethod::NoneAndVisible:
        return std::make_unique<NoCaptureExclusion>(CaptureExclusion::State::Visible);
    case CaptureExclusionMethod::NoneAndUnknown:
        break;
    }
    return std::make_unique<NoCaptureExclusion>(CaptureExclusion::State::Unknown);
}

} // namespace cuebright
