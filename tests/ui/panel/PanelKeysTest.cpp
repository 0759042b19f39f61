#include "ui/panel/PanelKeys.h"

#include <gtest/gtest.h>

#include <tuple>

namespace cuebright {

namespace {

using enum PanelCommand;
using Expected = std::optional<PanelCommand>;

constexpr Qt::KeyboardModifiers kCommand = Qt::ControlModifier;
constexpr auto kCommandShift = Qt::ControlModifier | Qt::ShiftModifier;

} // namespace

TEST(PanelKeys, AKeyActsByItsExactModifiersAndByTheEdit)
{
    const std::tuple<const char*, Qt::KeyboardModifiers, int, Expected, Expected> cases[] = {
        {"⌘O is swallowed while nothing is edited", kCommand, Qt::Key_O, Swallow, ToggleOverwrite},
        {"⌘Enter of the keypad", kCommand, Qt::Key_Enter, BeginEditing, SaveEdit},
        {"⌘Z", kCommand, Qt::Key_Z, Undo, {}},
        {"⌘⇧Z", kCommandShift, Qt::Key_Z, Redo, {}},
        {"⌘⇧E is the menu's", kCommandShift, Qt::Key_E, {}, {}},
        {"⌥⌘← has one modifier too many", kCommand | Qt::AltModifier, Qt::Key_Left, {}, {}},
        {"E alone", Qt::NoModifier, Qt::Key_E, {}, {}},
        {"⌘Escape", kCommand, Qt::Key_Escape, {}, {}},
    };
    for (const auto& [name, modifiers, key, notEditing, editing] : cases) {
        for (const bool isEditing : {false, true}) {
            const auto action = panelKeyAction({modifiers, key}, isEditing);
            EXPECT_EQ(action ? Expected(action->command) : Expected(), isEditing ? editing : notEditing)
                << name << (isEditing ? " while editing" : "");
        }
    }
}

TEST(PanelKeys, DigitsOpenDecksByTheirNumber)
{
    for (const int digit : {1, 2, 9})
        EXPECT_EQ(
            panelKeyAction({kCommand, Qt::Key_0 + digit, digit}, false), (PanelKeyAction {SwitchToDeck, digit - 1}));
    EXPECT_FALSE(panelKeyAction({kCommand, Qt::Key_0, 0}, false)) << "⌘0 is the menu's";
    EXPECT_FALSE(panelKeyAction({kCommand, Qt::Key_3, 3}, true)) << "the editor's while editing";
    EXPECT_FALSE(panelKeyAction({kCommandShift, Qt::Key_3, 3}, false));
}

TEST(PanelKeys, DigitsAreFoundOnKeypadsAndOnLayoutsThatShiftThem)
{
    const std::tuple<const char*, int, quint32, int> cases[] = {{"keypad 7", Qt::Key_7, 79, 7},
        {"é on the 2 key of a French layout", Qt::Key_Eacute, 11, 2}, {"à on its 0 key", Qt::Key_Agrave, 19, 0},
        {"a letter", Qt::Key_A, 38, -1}, {"- on its 6 key makes the text smaller", Qt::Key_Minus, 15, -1}};
    for (const auto& [name, key, scanCode, digit] : cases) {
        const auto stroke =
            KeyStroke::of(QKeyEvent(QEvent::KeyPress, key, kCommand | Qt::KeypadModifier, scanCode, 0, 0));
        EXPECT_EQ(stroke.digit, digit) << name;
        EXPECT_EQ(stroke.modifiers, kCommand) << "the keypad is no modifier";
    }
}

TEST(PanelKeys, PlainArrowsStepOnlyWhileNothingIsEdited)
{
    EXPECT_EQ(arrowKeyAction({Qt::NoModifier, Qt::Key_Right}, false), PanelKeyAction {NextCard});
    EXPECT_FALSE(arrowKeyAction({Qt::NoModifier, Qt::Key_Right}, true));
}

} // namespace cuebright
