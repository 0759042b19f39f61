#pragma once

#include <cstdint>
#include <optional>

namespace cuebright {

/// The digit of a key in the row above the letters, whatever the layout types with it; nothing for other keys, and on
/// systems without scan codes. `scanCode` is `QKeyEvent::nativeScanCode`. Defined once for each system.
[[nodiscard]] std::optional<int> digitRowKey(std::uint32_t scanCode);

} // namespace cuebright
