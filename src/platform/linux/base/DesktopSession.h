#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace cuebright {

/// The desktop session that the program runs in, as described by the environment.
struct DesktopSession {
    bool isWayland = false; ///< also when the program itself runs on XWayland
    std::vector<std::string> desktops; ///< the items of XDG_CURRENT_DESKTOP
    std::string hyprlandInstance; ///< empty outside Hyprland
    std::filesystem::path runtimeDirectory; ///< XDG_RUNTIME_DIR; empty where there is none

    [[nodiscard]] static DesktopSession fromEnvironment();

    [[nodiscard]] bool isDesktop(std::string_view name) const;
};

} // namespace cuebright
