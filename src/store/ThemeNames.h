#pragma once

/// The names under which themes are stored. Any other name means `kSystem`.
namespace cuebright::themeNames {

inline constexpr auto kSystem = "system";
inline constexpr auto kLight = "light";
inline constexpr auto kDark = "dark";

} // namespace cuebright::themeNames
