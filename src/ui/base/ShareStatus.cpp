#include "ui/base/ShareStatus.h"

namespace cuebright {

ShareBadge badgeFor(CaptureExclusion::State state)
{
    using enum CaptureExclusion::State;
    switch (state) {
    case Excluded:
        return {"HIDDEN FROM SHARE", ColorRole::Accent};
    case Blackout:
        return {"BLACK BOX IN SHARE", ColorRole::Accent};
    case Visible:
        return {"VISIBLE IN SHARE", ColorRole::Red};
    case Unknown:
        break;
    }
    return {"MAY BE VISIBLE IN SHARE", ColorRole::Orange};
}

std::optional<std::string_view> shareFeedback(CaptureExclusion::State state)
{
    using enum CaptureExclusion::State;
    switch (state) {
    case Excluded:
        return std::nullopt;
    case Blackout:
        return "Shown as a black box in screen shares";
    case Visible:
        return "Visible in screen shares";
    case Unknown:
        break;
    }
    return "May be visible in screen shares";
}

std::optional<std::string_view> shareAdvice(CaptureExclusion& exclusion)
{
    if (!exclusion.isSettled() || exclusion.state() == CaptureExclusion::State::Excluded)
        return std::nullopt;
    return "This desktop cannot hide a window from a shared screen. Share a single window or tab instead of the whole "
           "screen.";
}

} // namespace cuebright
