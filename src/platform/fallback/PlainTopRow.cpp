#include "platform/system/TopRow.h"

namespace cuebright {

std::optional<int> topRowDigit(std::uint32_t) { return std::nullopt; }

} // namespace cuebright
