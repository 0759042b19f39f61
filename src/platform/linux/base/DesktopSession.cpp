#include "platform/linux/base/DesktopSession.h"

#include <algorithm>
#include <cstdlib>

namespace cuebright {

namespace {

std::string variable(const char* name)
{
    const char* const value = std::getenv(name);
    return value ? value : "";
}

std::vector<std::string> split(std::string_view list)
{
    std::vector<std::string> parts;
    while (!list.empty()) {
        const auto end = std::min(list.find(':'), list.size());
        parts.emplace_back(list.substr(0, end));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return parts;
}

} // namespace

DesktopSession DesktopSession::fromEnvironment()
{
    return {!variable("WAYLAND_DISPLAY").empty() || variable("XDG_SESSION_TYPE") == "wayland",
        split(variable("XDG_CURRENT_DESKTOP")), variable("HYPRLAND_INSTANCE_SIGNATURE"), variable("XDG_RUNTIME_DIR")};
}

bool DesktopSession::isDesktop(std::string_view name) const
{
    return std::ranges::find(desktops, name) != desktops.end();
}

} // namespace cuebright
