#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cuebright {

/// A piece of a block's text that looks the same throughout.
struct InlineRun {
    std::string text; ///< UTF-8, without markers
    bool isStrong = false;
    bool isEmphasised = false;
    bool isCode = false;
    std::optional<std::string> link; ///< where it leads, as written; may be empty

    bool operator==(const InlineRun&) const = default;
};

/// Resolves the inline markers of one block's text as CommonMark's inline elements, white space kept as it is: neither
/// the ends of the text nor anything in it make a block, nor do line ends. Raw HTML is the text that it is, an image
/// its description without styles, a link by reference literal. Pure; never fails: a text over 16 KB or with over 2,000
/// brackets, on which a parser could spend seconds, is one plain run. An empty text has no runs; neighbours always
/// differ.
[[nodiscard]] std::vector<InlineRun> parseInline(std::string_view text);

} // namespace cuebright
