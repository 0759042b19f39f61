#pragma once

#include "platform/CaptureExclusion.h"
#include "ui/base/ColorRole.h"

#include <optional>
#include <string_view>

namespace cuebright {

/// What the audience sees of the panel, in a few words.
struct ShareBadge {
    std::string_view text;
    ColorRole color;

    bool operator==(const ShareBadge&) const = default;
};

[[nodiscard]] ShareBadge badgeFor(CaptureExclusion::State state);

/// The message at the first show after launch; none where the audience sees nothing of the panel.
[[nodiscard]] std::optional<std::string_view> shareFeedback(CaptureExclusion::State state);

/// What to do where the panel cannot be kept out of a shared screen; none where it is, or where that is not known yet.
[[nodiscard]] std::optional<std::string_view> shareAdvice(CaptureExclusion& exclusion);

} // namespace cuebright
