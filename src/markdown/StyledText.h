#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cuebright {

/// A piece of text with its own style; what is not set here comes from the block. Links and emphasis are in the accent
/// colour, code has a tinted background.
struct StyledRun {
    std::string text; ///< UTF-8
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isAccented = false;
    bool isCode = false; ///< in the monospaced font, on a tint
    std::optional<std::string> link {}; ///< the target as written

    bool operator==(const StyledRun&) const = default;
};

/// One block's text, parsed by `parseInline` and styled.
[[nodiscard]] std::vector<StyledRun> renderInline(std::string_view text);

} // namespace cuebright
