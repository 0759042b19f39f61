#include "platform/system/DigitRowKeys.h"

namespace cuebright {

std::optional<int> digitRowKey(std::uint32_t scanCode)
{
    constexpr std::uint32_t kFirst = 10; // KEY_1 of linux/input-event-codes.h, plus 8 as in X11 and xkb
    if (scanCode < kFirst || scanCode > kFirst + 9)
        return std::nullopt;
    return static_cast<int>((scanCode - kFirst + 1) % 10); // 1 to 9, then 0
}

} // namespace cuebright
