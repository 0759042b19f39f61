#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace cuebright {

/// The desktop session in which the program runs, as its environment describes it.
struct DesktopSession {
    bool isWayland = false; ///< also where the program itself goes through XWayland
    std::vector<std::string> desktops; ///< XDG_CURRENT_DESKTOP, taken apart
    std::string hyprlandInstance; ///< empty outside Hyprland
    std::filesystem::path runtimeDirectory; ///< XDG_RUNTIME_DIR; empty where there is none

    [[nodiscard]] static DesktopSession fromEnvironment();

    [[nodiscard]] bool isDesktop(std::string_view name) const;
};

} // namespace cuebright
