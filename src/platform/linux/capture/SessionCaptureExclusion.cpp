#include "platform/linux/capture/SessionCaptureExclusion.h"

#include "platform/fallback/NoCaptureExclusion.h"
#include "platform/linux/base/DesktopSession.h"
#include "platform/linux/capture/DBusKWinScripting.h"
#include "platform/linux/capture/HyprlandCaptureExclusion.h"
#include "platform/linux/capture/HyprlandSocket.h"
#include "platform/linux/capture/KWinCaptureExclusion.h"

#include <algorithm>
#include <string_view>

namespace cuebright {

namespace {

/// Wayland desktops that show every window to whoever shares the screen. On niri it depends on the user's own rules.
constexpr std::string_view kHideNothing[] = {"GNOME", "sway", "COSMIC", "river", "labwc"};

template <typename Exclusion> SessionCaptureExclusion startable(std::unique_ptr<Exclusion> exclusion)
{
    auto start = [&made = *exclusion] { made.start(); };
    return {std::move(exclusion), std::move(start)};
}

SessionCaptureExclusion nothingToAsk(CaptureExclusion::State known)
{
    return {std::make_unique<NoCaptureExclusion>(known), [] {}};
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

SessionCaptureExclusion makeCaptureExclusion(const DesktopSession& session, MainQueue& mainQueue)
{
    switch (captureExclusionMethod(session)) {
    case CaptureExclusionMethod::KWin:
        return startable(std::make_unique<KWinCaptureExclusion>(
            std::make_unique<DBusKWinScripting>(&QDBusConnection::sessionBus, session.runtimeDirectory), mainQueue));
    case CaptureExclusionMethod::Hyprland:
        return startable(std::make_unique<HyprlandCaptureExclusion>(
            std::make_unique<HyprlandSocket>(session.runtimeDirectory / "hypr" / session.hyprlandInstance), mainQueue));
    case CaptureExclusionMethod::NoneAndVisible:
        return nothingToAsk(CaptureExclusion::State::Visible);
    case CaptureExclusionMethod::NoneAndUnknown:
        break;
    }
    return nothingToAsk(CaptureExclusion::State::Unknown);
}

} // namespace cuebright
