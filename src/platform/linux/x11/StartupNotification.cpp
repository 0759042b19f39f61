#include "platform/linux/x11/StartupNotification.h"

#include <charconv>

namespace cuebright {

std::uint32_t startupTime(std::string_view id)
{
    constexpr std::string_view kMark = "_TIME";
    const auto mark = id.rfind(kMark);
    if (mark == std::string_view::npos)
        return 0;
    std::uint32_t time = 0;
    const auto end = id.data() + id.size();
    const auto result = std::from_chars(id.data() + mark + kMark.size(), end, time);
    return result.ec == std::errc() && result.ptr == end ? time : 0;
}

std::string startupEndMessage(std::string_view id)
{
    std::string message = "remove: ID=\"";
    for (const char c : id) {
        if (c == '"' || c == '\\')
            message += '\\';
        message += c;
    }
    return message + '"';
}

} // namespace cuebright
