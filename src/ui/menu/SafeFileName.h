#pragma once

#include <string>
#include <string_view>

namespace cuebright {

/// A name as close to `deckName` as file systems allow, without a suffix and with room for one: on one line, without
/// slashes and control characters, not hidden, at most 200 bytes. "Untitled" where nothing is left.
[[nodiscard]] std::string safeFileName(std::string_view deckName);

} // namespace cuebright
