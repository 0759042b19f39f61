#include "platform/system/DigitRowKeys.h"

namespace cuebright {

std::optional<int> digitRowKey(std::uint32_t) { return std::nullopt; }

} // namespace cuebright
