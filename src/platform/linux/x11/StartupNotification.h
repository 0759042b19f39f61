#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace cuebright {

// The texts of the Startup Notification Protocol for X11.

/// The X server's time of the launch: ids end in "_TIME" and that number. 0 if the id has no such number.
[[nodiscard]] std::uint32_t startupTime(std::string_view id);

/// The message that tells the desktop that the launch is complete.
[[nodiscard]] std::string startupEndMessage(std::string_view id);

} // namespace cuebright
