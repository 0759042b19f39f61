#pragma once

#include "ui/base/KeyStroke.h"

#include <cstdint>
#include <optional>

namespace cuebright {

/// What a key of the panel asks for.
enum class PanelCommand {
    Swallow, ///< the key is taken, nothing happens
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

/// The panel's shortcuts, tried before those of the menus; absent where the key is not one of them.
[[nodiscard]] std::optional<PanelKeyAction> panelKeyAction(const KeyStroke& stroke, bool isEditing);

/// A key that is held goes on stepping and undoing; everything else happens once.
[[nodiscard]] bool repeatsWhileHeld(PanelCommand command);

/// ⌘⇧S.
[[nodiscard]] bool isTogglePanelKey(const KeyStroke& stroke);

/// The plain arrow keys, which step through the cards while nothing is edited.
[[nodiscard]] std::optional<PanelKeyAction> arrowKeyAction(const KeyStroke& stroke, bool isEditing);

} // namespace cuebright
