#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cuebright {

/// A piece of a block's text in one style.
struct StyledRun {
    std::string text; ///< UTF-8, without markers
    bool isBold = false;
    bool isItalic = false;
    bool isCode = false;
    std::optional<std::string> link {}; ///< the target as written; may be empty

    bool operator==(const StyledRun&) const = default;
};

/// Parses one block's text as CommonMark inline elements. White space and line ends are kept, and nothing starts a
/// block. Raw HTML and reference links are plain text; an image is its description, without styles.
///
/// An empty text has no runs; neighbouring runs differ in style. Never fails: a text of more than 16 KB or 2,000
/// brackets, which could take cmark seconds, becomes one plain run.
[[nodiscard]] std::vector<StyledRun> renderInline(std::string_view text);

} // namespace cuebright
