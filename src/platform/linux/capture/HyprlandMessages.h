#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cuebright {

// What is said to Hyprland and what its replies mean, as its documentation has it. Nothing is returned for a reply that
// cannot be understood.

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

/// The request that has every window of ours captured as a black box, whether it comes through XWayland or not.
/// Understood from 0.50 on; Lua from 0.55 on.
[[nodiscard]] std::string hyprlandRuleRequest(HyprlandVersion version, HyprlandLanguage language);

/// The addresses of a process's windows, from the reply to "j/clients".
[[nodiscard]] std::optional<std::vector<std::string>> hyprlandWindows(std::string_view reply, long pid);

/// The value of a property that is true or false, from the reply to "/getprop".
[[nodiscard]] std::optional<bool> hyprlandProperty(std::string_view reply);

} // namespace cuebright
