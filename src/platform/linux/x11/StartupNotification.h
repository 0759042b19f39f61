#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace cuebright {

// The Startup Notification Protocol for X11, as far as it is text.

/// When the user launched, in the X server's time: ids end in "_TIME" and that number. 0 where this one does not.
[[nodiscard]] std::uint32_t startupTime(std::string_view id);

/// What tells the desktop that the launch is over.
[[nodiscard]] std::string startupEndMessage(std::string_view id);

} // namespace cuebright
