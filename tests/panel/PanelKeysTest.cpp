#include "panel/PanelKeys.h"

#include <gtest/gtest.h>

namespace cuebright {

namespace {

using enum PanelCommand;

constexpr Qt::KeyboardModifiers kNone = Qt::NoModifier;
constexpr Qt::KeyboardModifiers kCommand = Qt::ControlModifier;
constexpr auto kCommandShift = Qt::ControlModifier | Qt::ShiftModifier;
constexpr auto kCommandOption = Qt::ControlModifier | Qt::AltModifier;

struct Case {
    const char* name;
    Qt::KeyboardModifiers modifiers;
    int key;
    std::optional<PanelCommand> notEditing;
    std::optional<PanelCommand> editing;
};

std::optional<PanelCommand> commandFor(const Case& c, bool isEditing)
{
    const auto action = panelKeyAction({c.modifiers, c.key}, isEditing);
    return action ? std::optional(action->command) : std::nullopt;
}

} // namespace

TEST(PanelKeys, EveryKeyActsByModifiersAndEditing)
{
    const Case cases[] = {
        {"⌘D looks not at the edit", kCommand, Qt::Key_D, AskToDeleteCard, AskToDeleteCard},
        {"⌘Z", kCommand, Qt::Key_Z, Undo, {}},
        {"⌘E", kCommand, Qt::Key_E, BeginEditing, SaveEdit},
        {"⌘O is swallowed while nothing is edited", kCommand, Qt::Key_O, Swallow, ToggleOverwrite},
        {"⌘Return", kCommand, Qt::Key_Return, BeginEditing, SaveEdit},
        {"⌘Enter of the keypad", kCommand, Qt::Key_Enter, BeginEditing, SaveEdit},
        {"⌘.", kCommand, Qt::Key_Period, {}, CancelEdit},
        {"⌘←", kCommand, Qt::Key_Left, PrevCard, {}},
        {"⌘→", kCommand, Qt::Key_Right, NextCard, {}},
        {"⌘⇧W", kCommandShift, Qt::Key_W, ToggleWordCount, ToggleWordCount},
        {"⌘⇧Z", kCommandShift, Qt::Key_Z, Redo, {}},
        {"Escape", kNone, Qt::Key_Escape, {}, SaveEdit},
        {"⌘N is the menu's", kCommand, Qt::Key_N, {}, {}},
        {"⌘⇧E is the menu's", kCommandShift, Qt::Key_E, {}, {}},
        {"⌥⌘← has one modifier too many", kCommandOption, Qt::Key_Left, {}, {}},
        {"E alone", kNone, Qt::Key_E, {}, {}},
        {"⌘Escape", kCommand, Qt::Key_Escape, {}, {}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(commandFor(c, false), c.notEditing) << c.name;
        EXPECT_EQ(commandFor(c, true), c.editing) << c.name << " while editing";
    }
}

TEST(PanelKeys, DigitsOpenDecksByTheirNumber)
{
    for (int digit = 1; digit <= 9; ++digit) {
        const auto action = panelKeyAction({kCommand, Qt::Key_0 + digit, digit}, false);
        EXPECT_EQ(action, (PanelKeyAction {SwitchToDeck, digit - 1}));
    }
    EXPECT_FALSE(panelKeyAction({kCommand, Qt::Key_0, 0}, false)) << "⌘0 is the menu's";
    EXPECT_FALSE(panelKeyAction({kCommand, Qt::Key_3, 3}, true)) << "the editor's while editing";
    EXPECT_FALSE(panelKeyAction({kCommandShift, Qt::Key_3, 3}, false));
}

TEST(PanelKeys, DigitsAreFoundOnKeypadsAndOnLayoutsThatShiftThem)
{
    const auto digitOf = [](int key, quint32 scanCode) {
        return KeyStroke::of(QKeyEvent(QEvent::KeyPress, key, kCommand | Qt::KeypadModifier, scanCode, 0, 0)).digit;
    };
    EXPECT_EQ(digitOf(Qt::Key_7, 79), 7) << "keypad 7";
    EXPECT_EQ(digitOf(Qt::Key_Eacute, 11), 2) << "é on the 2 key of a French layout";
    EXPECT_EQ(digitOf(Qt::Key_Agrave, 19), 0);
    EXPECT_EQ(digitOf(Qt::Key_A, 38), -1);
    EXPECT_EQ(digitOf(Qt::Key_Minus, 15), -1) << "- on the 6 key of a French layout makes the text smaller";
    EXPECT_EQ(KeyStroke::of(QKeyEvent(QEvent::KeyPress, Qt::Key_7, kCommand | Qt::KeypadModifier)).modifiers, kCommand)
        << "the keypad is no modifier";
}

TEST(PanelKeys, PlainArrowsStepOnlyWhileNothingIsEdited)
{
    EXPECT_EQ(arrowKeyAction({kNone, Qt::Key_Right}, false), PanelKeyAction {NextCard});
    EXPECT_EQ(arrowKeyAction({kNone, Qt::Key_Left}, false), PanelKeyAction {PrevCard});
    EXPECT_FALSE(arrowKeyAction({kNone, Qt::Key_Right}, true));
    EXPECT_FALSE(arrowKeyAction({Qt::ShiftModifier, Qt::Key_Right}, false));
    EXPECT_FALSE(arrowKeyAction({kNone, Qt::Key_Up}, false));
}

} // namespace cuebright
