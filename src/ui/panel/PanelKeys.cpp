#include "ui/panel/PanelKeys.h"

#include <algorithm>
#include <array>

namespace cuebright {

namespace {

using enum PanelCommand;

/// One row of a key table; an absent command passes the key on.
struct Row {
    int key;
    std::optional<PanelCommand> notEditing;
    std::optional<PanelCommand> editing;
};

constexpr std::array kCommandRows {
    Row {Qt::Key_D, AskToDeleteCard, AskToDeleteCard},
    Row {Qt::Key_Z, Undo, std::nullopt},
    Row {Qt::Key_E, BeginEditing, SaveEdit},
    Row {Qt::Key_O, Swallow, ToggleOverwrite},
    Row {Qt::Key_Return, BeginEditing, SaveEdit},
    Row {Qt::Key_Enter, BeginEditing, SaveEdit},
    Row {Qt::Key_Period, std::nullopt, CancelEdit},
    Row {Qt::Key_Left, PrevCard, std::nullopt},
    Row {Qt::Key_Right, NextCard, std::nullopt},
};

constexpr std::array kCommandShiftRows {
    Row {Qt::Key_W, ToggleWordCount, ToggleWordCount}, Row {Qt::Key_Z, Redo, std::nullopt},
    Row {Qt::Key_Period, std::nullopt, CancelEdit}, // where the full stop needs Shift
};

constexpr std::array kPlainRows {
    Row {Qt::Key_Escape, std::nullopt, SaveEdit},
};

constexpr std::array kArrowRows {
    Row {Qt::Key_Left, PrevCard, std::nullopt},
    Row {Qt::Key_Right, NextCard, std::nullopt},
};

template <typename Rows> const Row* find(const Rows& rows, int key)
{
    const auto row = std::find_if(rows.begin(), rows.end(), [key](const Row& r) { return r.key == key; });
    return row == rows.end() ? nullptr : &*row;
}

template <typename Rows> std::optional<PanelKeyAction> lookUp(const Rows& rows, const KeyStroke& stroke, bool isEditing)
{
    const auto row = find(rows, stroke.key);
    const auto command = row ? (isEditing ? row->editing : row->notEditing) : std::nullopt;
    return command ? std::optional(PanelKeyAction {*command}) : std::nullopt;
}

std::optional<PanelKeyAction> deckKeyAction(const KeyStroke& stroke, bool isEditing)
{
    if (isEditing || stroke.digit < 1 || stroke.digit > 9)
        return std::nullopt;
    return PanelKeyAction {SwitchToDeck, stroke.digit - 1};
}

} // namespace

std::optional<PanelKeyAction> panelKeyAction(const KeyStroke& stroke, bool isEditing)
{
    if (stroke.modifiers == Qt::ControlModifier) {
        if (find(kCommandRows, stroke.key))
            return lookUp(kCommandRows, stroke, isEditing);
        return deckKeyAction(stroke, isEditing);
    }
    if (stroke.modifiers == (Qt::ControlModifier | Qt::ShiftModifier))
        return lookUp(kCommandShiftRows, stroke, isEditing);
    if (stroke.modifiers == Qt::NoModifier)
        return lookUp(kPlainRows, stroke, isEditing);
    return std::nullopt;
}

bool repeatsWhileHeld(PanelCommand command)
{
    return command == PrevCard || command == NextCard || command == Undo || command == Redo;
}

bool isTogglePanelKey(const KeyStroke& stroke)
{
    return stroke.modifiers == (Qt::ControlModifier | Qt::ShiftModifier) && stroke.key == Qt::Key_S;
}

std::optional<PanelKeyAction> arrowKeyAction(const KeyStroke& stroke, bool isEditing)
{
    return stroke.modifiers == Qt::NoModifier ? lookUp(kArrowRows, stroke, isEditing) : std::nullopt;
}

} // namespace cuebright
