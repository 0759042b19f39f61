#pragma once

#include <cstdint>
#include <optional>

namespace cuebright {

/// The digit that a key of the row above the letters stands for on most keyboards, whatever the layout in use types
/// with it; nothing for other keys, and where keys have no numbers. `scanCode` is the toolkit's native one. Defined
/// once for each system, in its own folder.
[[nodiscard]] std::optional<int> digitRowKey(std::uint32_t scanCode);

} // namespace cuebright
