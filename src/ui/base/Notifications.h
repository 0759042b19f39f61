#pragma once

#include <string_view>

namespace cuebright {

// The names that the program posts to its NotificationCenter.

/// Shows or hides the panel.
inline constexpr std::string_view kTogglePanelNotification = "cueBrightTogglePanel";
/// The panel is back after more than a minute.
inline constexpr std::string_view kReturnAfterAbsenceNotification = "cueBrightReturnAfterAbsence";
/// Flips the editor between inserting and overwriting.
inline constexpr std::string_view kToggleOverwriteNotification = "cueBrightToggleOverwrite";
/// Asks whether to delete the active card.
inline constexpr std::string_view kDeleteCardNotification = "cueBrightDeleteCard";
/// Asks for a new name of the active deck.
inline constexpr std::string_view kRenameDeckNotification = "cueBrightRenameDeck";

} // namespace cuebright
