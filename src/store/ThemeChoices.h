#pragma once

#include <array>

namespace cuebright {

/// The values of `CardStore::theme`. Any other text means `kSystem`.
namespace themeNames {
inline constexpr auto kSystem = "system";
inline constexpr auto kLight = "light";
inline constexpr auto kDark = "dark";
} // namespace themeNames

/// A theme with its title for the user.
struct ThemeChoice {
    const char* value;
    const char* title;
};

inline constexpr std::array<ThemeChoice, 3> kThemeChoices {
    {{themeNames::kSystem, "System"}, {themeNames::kLight, "Light"}, {themeNames::kDark, "Dark"}}};

} // namespace cuebright
