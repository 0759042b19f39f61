#pragma once

#include <cstdint>

/// The values that the user can choose, both ends included. A stored preference may lie outside.
namespace cuebright {

inline constexpr double kMinFontSize = 14; ///< points
inline constexpr double kMaxFontSize = 28;
inline constexpr double kMinOpacity = 0.4; ///< 1 = opaque
inline constexpr double kMaxOpacity = 1;
inline constexpr std::int64_t kMinSpeakingPace = 80; ///< words per minute
inline constexpr std::int64_t kMaxSpeakingPace = 250;

} // namespace cuebright
