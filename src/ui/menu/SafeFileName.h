#pragma once

#include <string>
#include <string_view>

namespace cuebright {

/// `deckName` as a file name without a suffix: one line, no slashes or control characters, not hidden, at most 200
/// bytes. "Untitled" if nothing remains.
[[nodiscard]] std::string safeFileName(std::string_view deckName);

} // namespace cuebright
