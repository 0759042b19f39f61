#include "ui/menu/Command.h"

#include "store/CardStore.h"
#include "store/ThemeChoices.h"

namespace cuebright {

bool isCommandEnabled(Command command, const CardStore& store)
{
    switch (command) {
    case Command::SaveCard:
    case Command::CancelEdit:
        return store.isEditing();
    case Command::DeleteCard:
        return store.canDeleteCard();
    case Command::DeleteDeck:
        return store.canDeleteDeck();
    case Command::MoveCardUp:
        return store.canMoveCardUp();
    case Command::MoveCardDown:
        return store.canMoveCardDown();
    default:
        return true;
    }
}

const char* themeOf(Command command)
{
    switch (command) {
    case Command::SetThemeSystem:
        return kThemeChoices[0].value;
    case Command::SetThemeLight:
        return kThemeChoices[1].value;
    case Command::SetThemeDark:
        return kThemeChoices[2].value;
    default:
        return nullptr;
    }
}

bool isCardCommand(Command command)
{
    switch (command) {
    case Command::NewCard:
    case Command::DeleteCard:
    case Command::NewDeck:
    case Command::DeleteDeck:
    case Command::RenameDeck:
    case Command::ExportDeck:
    case Command::SaveCard:
    case Command::CancelEdit:
    case Command::MoveCardUp:
    case Command::MoveCardDown:
        return true;
    default:
        return false;
    }
}

bool isCommandRepeatable(Command command)
{
    switch (command) {
    case Command::Undo:
    case Command::Redo:
    case Command::Paste:
    case Command::IncreaseTextSize:
    case Command::DecreaseTextSize:
    case Command::IncreaseOpacity:
    case Command::DecreaseOpacity:
    case Command::MoveCardUp:
    case Command::MoveCardDown:
        return true;
    default:
        return false;
    }
}

} // namespace cuebright
