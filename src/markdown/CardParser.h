#pragma once

#include "markdown/Block.h"

#include <string_view>
#include <vector>

namespace cuebright {

/// Splits a card's text into blocks, one per non-blank line: "# " heading, "> " quote, "- " bullet, "3. " numbered
/// item, anything else a paragraph. No nesting, nothing spans lines. Pure; never fails; linear in the length.
[[nodiscard]] std::vector<Block> parseMarkdown(std::string_view content);

} // namespace cuebright
