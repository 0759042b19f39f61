#pragma once

#include "theme/Colors.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cuebright {

/// A piece of text with the looks of its own; what is absent comes from the block that it stands in.
struct StyledRun {
    std::string text; ///< UTF-8
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    std::optional<double> monospacedSize {}; ///< the monospaced font in so many logical pixels
    std::optional<Color> foreground {};
    std::optional<Color> background {};
    std::optional<std::string> link {}; ///< where it leads, as written

    bool operator==(const StyledRun&) const = default;
};

/// One block's text with its inline Markdown resolved (`parseInline`) and coloured. `fontSize` is that of the card's
/// body.
[[nodiscard]] std::vector<StyledRun> renderInline(std::string_view text, double fontSize, const Colors& colors);

} // namespace cuebright
