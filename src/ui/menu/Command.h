#pragma once

namespace cuebright {

class CardStore;

/// The menus' commands.
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

/// Whether the command would have an effect in the store's state. True for commands that do not depend on the store;
/// `EditCommands` decides about Undo and Redo.
[[nodiscard]] bool isCommandEnabled(Command command, const CardStore& store);

/// The value of `CardStore::theme` that the command sets; null for other commands.
[[nodiscard]] const char* themeOf(Command command);

/// Whether the command changes decks, cards or the open edit, immediately or after a question.
[[nodiscard]] bool isCardCommand(Command command);

/// Whether holding the key repeats the command.
[[nodiscard]] bool isCommandRepeatable(Command command);

} // namespace cuebright
