#include "ui/panel/PanelKeys.h"

#include "ui/base/KeyStroke.h"

#include <gtest/gtest.h>

#include <tuple>

namespace cuebright {

namespace {

using enum PanelCommand;
using Expected = std::optional<PanelCommand>;
using Action = std::optional<PanelKeyAction>;

constexpr Qt::KeyboardModifiers kCommand = Qt::ControlModifier;
constexpr auto kCommandShift = Qt::ControlModifier | Qt::ShiftModifier;

enum class Press { First, Repeated };

Action actionOf(QKeyCombination keys, PanelState state, Press press = Press::First)
{
    return panelKeyAction(
        QKeyEvent(QEvent::KeyPress, keys.key(), keys.keyboardModifiers(), QString(), press == Press::Repeated), state);
}

Expected commandOf(const Action& action) { return action ? Expected(action->command) : Expected(); }

} // namespace

TEST(PanelKeys, AKeyActsByItsExactModifiersAndByTheEdit)
{
    const std::tuple<const char*, Qt::KeyboardModifiers, Qt::Key, Expected, Expected> cases[] = {
        {"⌘O is swallowed while nothing is edited", kCommand, Qt::Key_O, Swallow, ToggleOverwrite},
        {"⌘Enter of the keypad", kCommand, Qt::Key_Enter, BeginEditing, SaveEdit},
        {"⌘Z", kCommand, Qt::Key_Z, Undo, {}},
        {"⌘⇧Z", kCommandShift, Qt::Key_Z, Redo, {}},
        {"⌘⇧E is the menu's", kCommandShift, Qt::Key_E, {}, {}},
        {"→ steps only while nothing is edited", Qt::NoModifier, Qt::Key_Right, NextCard, {}},
        {"⌥⌘← has one modifier too many", kCommand | Qt::AltModifier, Qt::Key_Left, {}, {}},
        {"E alone", Qt::NoModifier, Qt::Key_E, {}, {}},
        {"⌘Escape", kCommand, Qt::Key_Escape, {}, {}},
    };
    for (const auto& [name, modifiers, key, reading, editing] : cases) {
        const QKeyCombination keys(modifiers, key);
        EXPECT_EQ(commandOf(actionOf(keys, PanelState::Reading)), reading) << name;
        EXPECT_EQ(commandOf(actionOf(keys, PanelState::Editing)), editing) << name << " while editing";
        EXPECT_EQ(commandOf(actionOf(keys, PanelState::Hiding)), Swallow) << name << " while hiding";
    }
}

TEST(PanelKeys, AHeldKeyStepsAndUndoesAndDoesNothingElseTwice)
{
    for (const auto keys : {QKeyCombination(Qt::Key_Left), Qt::CTRL | Qt::Key_Right, Qt::CTRL | Qt::Key_Z}) {
        const auto first = actionOf(keys, PanelState::Reading);
        ASSERT_TRUE(first);
        EXPECT_EQ(actionOf(keys, PanelState::Reading, Press::Repeated), first);
    }
    for (const auto keys : {Qt::CTRL | Qt::Key_E, Qt::CTRL | Qt::Key_D, Qt::CTRL | Qt::Key_2})
        EXPECT_EQ(actionOf(keys, PanelState::Reading, Press::Repeated), PanelKeyAction {Swallow});
    EXPECT_FALSE(actionOf(Qt::CTRL | Qt::Key_Left, PanelState::Editing, Press::Repeated)) << "the editor's";
}

TEST(PanelKeys, ThePanelTogglesInEveryStateAndOncePerPress)
{
    const auto keys = Qt::CTRL | Qt::SHIFT | Qt::Key_S;
    for (const auto state : {PanelState::Reading, PanelState::Editing, PanelState::Hiding}) {
        EXPECT_EQ(actionOf(keys, state), PanelKeyAction {TogglePanel});
        EXPECT_EQ(actionOf(keys, state, Press::Repeated), PanelKeyAction {Swallow});
    }
}

TEST(PanelKeys, DigitsOpenDecksByTheirNumber)
{
    for (const int digit : {1, 2, 9}) {
        const QKeyCombination keys(kCommand, static_cast<Qt::Key>(Qt::Key_0 + digit));
        EXPECT_EQ(actionOf(keys, PanelState::Reading), (PanelKeyAction {SwitchToDeck, digit - 1}));
    }
    EXPECT_FALSE(actionOf(Qt::CTRL | Qt::Key_0, PanelState::Reading)) << "⌘0 is the menu's";
    EXPECT_FALSE(actionOf(Qt::CTRL | Qt::Key_3, PanelState::Editing)) << "the editor's while editing";
    EXPECT_FALSE(actionOf(Qt::CTRL | Qt::SHIFT | Qt::Key_3, PanelState::Reading));
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

} // namespace cuebright
