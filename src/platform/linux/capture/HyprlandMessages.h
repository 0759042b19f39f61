#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cuebright {

// Requests to Hyprland and the parsing of its replies, as documented. A malformed reply gives no value.

struct HyprlandVersion {
    int first = 0;
    int second = 0;

    auto operator<=>(const HyprlandVersion&) const = default;
};

enum class HyprlandLanguage { Classic, Lua };

/// From the reply to "j/version".
[[nodiscard]] std::optional<HyprlandVersion> hyprlandVersion(std::string_view reply);

/// The language of the configuration, from the reply to "j/status" (since 0.55).
[[nodiscard]] std::optional<HyprlandLanguage> hyprlandLanguage(std::string_view reply);

/// The request for a rule that captures every window of the program as a black box, XWayland windows included.
/// Since 0.50; Lua since 0.55.
[[nodiscard]] std::string hyprlandRuleRequest(HyprlandVersion version, HyprlandLanguage language);

/// The addresses of a process's windows, from the reply to "j/clients".
[[nodiscard]] std::optional<std::vector<std::string>> hyprlandWindows(std::string_view reply, long pid);

/// The value of a boolean property, from the reply to "/getprop".
[[nodiscard]] std::optional<bool> hyprlandProperty(std::string_view reply);

} // namespace cuebright
