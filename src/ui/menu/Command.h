#pragma once

namespace cuebright {

class CardStore;

/// Everything that the menus offer.
enum class Command {
    ShowAbout,
    OpenSettings,
    CheckForUpdates,
    Quit,
    NewCard,
    DeleteCard,
    NewDeck,
    DeleteDeck,
    RenameDeck,
    ExportDeck,
    Undo,
    Redo,
    SaveCard,
    CancelEdit,
    Cut,
    Copy,
    Paste,
    SelectAll,
    SetThemeSystem,
    SetThemeLight,
    SetThemeDark,
    IncreaseTextSize,
    DecreaseTextSize,
    ResetTextSize,
    IncreaseOpacity,
    DecreaseOpacity,
    ShowPanel,
    MoveCardUp,
    MoveCardDown,
    Minimize,
    OpenSupport,
    EmailSupport,
};

/// Whether the command could do something in the store's state. True for all that does not depend on the store; what
/// can be undone is known to `EditCommands`.
[[nodiscard]] bool isCommandEnabled(Command command, const CardStore& store);

/// The three themes carry check marks, nothing else does.
[[nodiscard]] bool isCommandCheckable(Command command);
[[nodiscard]] bool isCommandChecked(Command command, const CardStore& store);

/// Whether the command changes decks, cards or what is being edited, at once or after a question.
[[nodiscard]] bool isCardCommand(Command command);

/// Whether a held key may perform the command again and again.
[[nodiscard]] bool isCommandRepeatable(Command command);

} // namespace cuebright
