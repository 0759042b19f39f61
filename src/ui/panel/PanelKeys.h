#pragma once

#include <cstdint>
#include <optional>

class QKeyEvent;

namespace cuebright {

enum class PanelState {
    Reading,
    Editing,
    Hiding, ///< fading out; the user has already moved on to another program
};

/// What a key of the panel does.
enum class PanelCommand {
    Swallow, ///< takes the key and does nothing
    TogglePanel,
    AskToDeleteCard,
    Undo,
    Redo,
    BeginEditing,
    SaveEdit,
    CancelEdit,
    ToggleOverwrite,
    PrevCard,
    NextCard,
    SwitchToDeck,
    ToggleWordCount,
};

struct PanelKeyAction {
    PanelCommand command;
    std::int64_t deckIndex = 0; ///< of `SwitchToDeck`

    bool operator==(const PanelKeyAction&) const = default;
};

/// The panel's shortcuts. Absent: the key goes on to the menus, then to the focused widget.
[[nodiscard]] std::optional<PanelKeyAction> panelKeyAction(const QKeyEvent& event, PanelState state);

} // namespace cuebright
