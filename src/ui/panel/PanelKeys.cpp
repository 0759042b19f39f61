#include "ui/panel/PanelKeys.h"

#include "ui/base/KeyStroke.h"
#include "ui/panel/GlobalHotKey.h"

#include <algorithm>
#include <array>

namespace cuebright {

namespace {

using enum PanelCommand;

enum class WhenHeld { ActsOnce, Repeats };

/// An absent command passes the key on.
struct Row {
    QKeyCombination keys;
    std::optional<PanelCommand> reading;
    std::optional<PanelCommand> editing;
    WhenHeld whenHeld = WhenHeld::ActsOnce;
};

constexpr auto kCommandShift = Qt::CTRL | Qt::SHIFT;

constexpr std::array kRows {
    Row {kTogglePanelKeys, TogglePanel, TogglePanel}, // arrives here only if the system has not granted the hot key
    Row {Qt::CTRL | Qt::Key_D, AskToDeleteCard, AskToDeleteCard},
    Row {Qt::CTRL | Qt::Key_Z, Undo, std::nullopt, WhenHeld::Repeats},
    Row {kCommandShift | Qt::Key_Z, Redo, std::nullopt, WhenHeld::Repeats},
    Row {Qt::CTRL | Qt::Key_E, BeginEditing, SaveEdit},
    Row {Qt::CTRL | Qt::Key_Return, BeginEditing, SaveEdit},
    Row {Qt::CTRL | Qt::Key_Enter, BeginEditing, SaveEdit},
    Row {Qt::Key_Escape, std::nullopt, SaveEdit},
    Row {Qt::CTRL | Qt::Key_Period, std::nullopt, CancelEdit},
    Row {kCommandShift | Qt::Key_Period, std::nullopt, CancelEdit}, // where the full stop needs Shift
    Row {Qt::CTRL | Qt::Key_O, Swallow, ToggleOverwrite},
    Row {Qt::Key_Left, PrevCard, std::nullopt, WhenHeld::Repeats},
    Row {Qt::Key_Right, NextCard, std::nullopt, WhenHeld::Repeats},
    Row {Qt::CTRL | Qt::Key_Left, PrevCard, std::nullopt, WhenHeld::Repeats},
    Row {Qt::CTRL | Qt::Key_Right, NextCard, std::nullopt, WhenHeld::Repeats},
    Row {kCommandShift | Qt::Key_W, ToggleWordCount, ToggleWordCount},
};

/// The state decides first, then the table, then the deck digits. A key in the table never counts as a digit, even
/// where the layout has it in the digit row.
std::optional<PanelKeyAction> actionFor(const KeyStroke& stroke, const Row* row, PanelState state)
{
    if (state == PanelState::Hiding)
        return PanelKeyAction {row && row->reading == TogglePanel ? TogglePanel : Swallow};
    if (row) {
        const auto command = state == PanelState::Editing ? row->editing : row->reading;
        return command ? std::optional(PanelKeyAction {*command}) : std::nullopt;
    }
    const bool isDeckKey = stroke.modifiers == Qt::ControlModifier && stroke.digit >= 1;
    if (isDeckKey && state == PanelState::Reading)
        return PanelKeyAction {SwitchToDeck, stroke.digit - 1};
    return std::nullopt;
}

} // namespace

std::optional<PanelKeyAction> panelKeyAction(const QKeyEvent& event, PanelState state)
{
    const auto stroke = KeyStroke::of(event);
    const QKeyCombination keys(stroke.modifiers, static_cast<Qt::Key>(stroke.key));
    const auto found = std::ranges::find(kRows, keys, &Row::keys);
    const auto row = found == kRows.end() ? nullptr : &*found;
    const auto action = actionFor(stroke, row, state);
    const bool repeats = row && row->whenHeld == WhenHeld::Repeats;
    return action && event.isAutoRepeat() && !repeats ? PanelKeyAction {Swallow} : action;
}

} // namespace cuebright
