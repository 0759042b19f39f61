#include "platform/linux/capture/SessionCaptureExclusion.h"

#include "platform/fallback/NoCaptureExclusion.h"
#include "platform/linux/base/Session.h"
#include "platform/linux/capture/BusKWinScripting.h"
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

CaptureExclusionWay captureExclusionWay(const Session& session)
{
    if (!session.isWayland) // every X11 client can read the whole screen
        return CaptureExclusionWay::NoneAndVisible;
    if (!session.hyprlandInstance.empty())
        return CaptureExclusionWay::Hyprland;
    if (session.isDesktop("KDE"))
        return CaptureExclusionWay::KWin;
    const bool isKnown = std::ranges::any_of(kHideNothing, [&](auto name) { return session.isDesktop(name); });
    return isKnown ? CaptureExclusionWay::NoneAndVisible : CaptureExclusionWay::NoneAndUnknown;
}

SessionCaptureExclusion makeCaptureExclusion(const Session& session, MainQueue& mainQueue)
{
    switch (captureExclusionWay(session)) {
    case CaptureExclusionWay::KWin:
        return startable(std::make_unique<KWinCaptureExclusion>(
            std::make_unique<BusKWinScripting>(&QDBusConnection::sessionBus, session.runtimeDirectory), mainQueue));
    case CaptureExclusionWay::Hyprland:
        return startable(std::make_unique<HyprlandCaptureExclusion>(
            std::make_unique<HyprlandSocket>(session.runtimeDirectory / "hypr" / session.hyprlandInstance), mainQueue));
    case CaptureExclusionWay::NoneAndVisible:
        return nothingToAsk(CaptureExclusion::State::Visible);
    case CaptureExclusionWay::NoneAndUnknown:
        break;
    }
    return nothingToAsk(CaptureExclusion::State::Unknown);
}

} // namespace cuebright
