#pragma once

#include <cstdint>
#include <string>

namespace cuebright {

/// `number` in decimal, at least two characters long: "07", "12", "120", "-3".
[[nodiscard]] inline std::string twoDigits(std::int64_t number)
{
    auto text = std::to_string(number);
    return text.size() < 2 ? text.insert(0, 1, '0') : text;
}

} // namespace cuebright
