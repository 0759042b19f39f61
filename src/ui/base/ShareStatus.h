#pragma once

#include "platform/CaptureExclusion.h"
#include "ui/base/ColorRole.h"

#include <optional>
#include <string_view>

namespace cuebright {

/// Tells at a glance what the audience sees of the panel.
struct ShareBadge {
    std::string_view text;
    ColorRole ink;

    bool operator==(const ShareBadge&) const = default;
};

[[nodiscard]] ShareBadge badgeFor(CaptureExclusion::State state);

/// What the first show after launch tells; absent where nothing of the panel is seen.
[[nodiscard]] std::optional<std::string_view> shareFeedback(CaptureExclusion::State state);

/// What to do where the panel cannot be kept out of a shared screen; absent where it is.
[[nodiscard]] std::optional<std::string_view> shareAdvice(CaptureExclusion::State state);

/// The same for what is known now; absent while it is being found out.
[[nodiscard]] std::optional<std::string_view> currentShareAdvice(CaptureExclusion& exclusion);

} // namespace cuebright
