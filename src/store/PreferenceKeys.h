#pragma once

#include <string_view>

/// The keys of everything that the program keeps in `Preferences`.
namespace cuebright::preferenceKeys {

inline constexpr std::string_view kTheme = "cuebrightTheme";
inline constexpr std::string_view kFontSize = "cuebrightFontSize";
inline constexpr std::string_view kOpacity = "cuebrightOpacity";
inline constexpr std::string_view kWordCount = "cuebrightWordCount";
inline constexpr std::string_view kSpeakingPace = "cuebrightSpeakingPace";
inline constexpr std::string_view kWindowFrame = "cuebrightWindowFrame";
inline constexpr std::string_view kOnboardingDone = "cuebrightOnboardingDone";

} // namespace cuebright::preferenceKeys
