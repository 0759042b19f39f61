#include "ui/menu/MenuTree.h"

#include "store/ThemeChoices.h"
#include "ui/panel/GlobalHotKey.h"

namespace cuebright {

namespace {

using enum Command;

constexpr auto kCommandShift = Qt::CTRL | Qt::SHIFT;
constexpr auto kCommandOption = Qt::CTRL | Qt::ALT;
const MenuItem kSeparator;

std::vector<MenuItem> applicationItems()
{
    return {
        {"About Cuebright", ShowAbout},
        kSeparator,
        {"Settings…", OpenSettings, {Qt::CTRL | Qt::Key_Comma}},
        {"Check for Updates…", CheckForUpdates},
        kSeparator,
        {"Quit Cuebright", Quit, {Qt::CTRL | Qt::Key_Q}},
    };
}

std::vector<MenuItem> fileItems()
{
    return {
        {"New Card", NewCard, {Qt::CTRL | Qt::Key_N}},
        {"Delete Card", DeleteCard, {Qt::CTRL | Qt::Key_Backspace}},
        kSeparator,
        {"New Deck", NewDeck, {kCommandShift | Qt::Key_N}},
        {"Delete Deck", DeleteDeck},
        {"Rename Deck…", RenameDeck},
        kSeparator,
        {"Export Deck…", ExportDeck, {kCommandShift | Qt::Key_E}},
    };
}

std::vector<MenuItem> editItems()
{
    return {
        {"Undo", Undo, {Qt::CTRL | Qt::Key_Z}},
        {"Redo", Redo, {kCommandShift | Qt::Key_Z}},
        kSeparator,
        {"Save Card", SaveCard, {Qt::CTRL | Qt::Key_Return}},
        {"Cancel Edit", CancelEdit, {Qt::CTRL | Qt::Key_Period}},
        kSeparator,
        {"Cut", Cut, {Qt::CTRL | Qt::Key_X}},
        {"Copy", Copy, {Qt::CTRL | Qt::Key_C}},
        {"Paste", Paste, {Qt::CTRL | Qt::Key_V}},
        {"Select All", SelectAll, {Qt::CTRL | Qt::Key_A}},
    };
}

std::vector<MenuItem> viewItems()
{
    return {
        {"Appearance", {}, {},
            {{kThemeChoices[0].title, SetThemeSystem}, {kThemeChoices[1].title, SetThemeLight},
                {kThemeChoices[2].title, SetThemeDark}}},
        kSeparator,
        {"Increase Text Size", IncreaseTextSize, {Qt::CTRL | Qt::Key_Equal}},
        {"Decrease Text Size", DecreaseTextSize, {Qt::CTRL | Qt::Key_Minus}},
        {"Reset Text Size", ResetTextSize, {Qt::CTRL | Qt::Key_0}},
        kSeparator,
        {"Increase Opacity", IncreaseOpacity, {Qt::CTRL | Qt::Key_BracketRight}},
        {"Decrease Opacity", DecreaseOpacity, {Qt::CTRL | Qt::Key_BracketLeft}},
        kSeparator,
        {"Show Cuebright", ShowPanel, {kTogglePanelKeys}},
    };
}

/// Many desktops reserve Ctrl+Alt+Up and Down, so moving a card has a second key.
std::vector<MenuItem> deckItems()
{
    return {
        {"Move Card Up", MoveCardUp, {kCommandOption | Qt::Key_Up, kCommandShift | Qt::Key_Up}},
        {"Move Card Down", MoveCardDown, {kCommandOption | Qt::Key_Down, kCommandShift | Qt::Key_Down}},
    };
}

} // namespace

std::vector<Menu> mainMenuTree()
{
    return {
        {"Cuebright", applicationItems()},
        {"File", fileItems()},
        {"Edit", editItems()},
        {"View", viewItems()},
        {"Deck", deckItems()},
        {"Window", {{"Minimize", Minimize, {Qt::CTRL | Qt::Key_M}}}},
        {"Help", {{"Support & Compatibility", OpenSupport}, {"Email Support…", EmailSupport}}},
    };
}

} // namespace cuebright
