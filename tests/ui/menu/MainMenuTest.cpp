#include "ui/menu/MenuFixture.h"
#include "ui/menu/StatusItem.h"

#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>

namespace cuebright::test {

namespace {

/// The accessible names of an element and its descendants, without separators.
QString read(QAccessibleInterface* element)
{
    QStringList parts;
    for (int i = 0; i < element->childCount(); ++i) {
        const auto child = element->child(i);
        if (child && child->role() != QAccessible::Separator && child->role() != QAccessible::Button)
            parts << read(child);
    }
    const auto name = element->role() == QAccessible::PopupMenu ? QString() : element->text(QAccessible::Name);
    return parts.isEmpty() ? name : name + QLatin1Char('[') + parts.join(QLatin1Char('|')) + QLatin1Char(']');
}

} // namespace

class MainMenuTest : public MenuFixture { };

TEST_F(MainMenuTest, AScreenReaderFindsItAllWithoutOpeningIt)
{
    const auto text = read(QAccessible::queryAccessibleInterface(&strip)).toStdString();
    EXPECT_TRUE(text.starts_with("Menu bar[Cuebright[[About Cuebright|Settings…|Check for Updates…|Quit Cuebright]]|"
                                 "File[[New Card|"))
        << text;
    EXPECT_NE(text.find("View[[Appearance[[System|Light|Dark]]|Increase Text Size|"), std::string::npos) << text;
    EXPECT_TRUE(text.ends_with("Help[[Support & Compatibility|Email Support…]]]")) << text;
}

TEST_F(MainMenuTest, KeysReachTheirCommandsFromEveryWindowThatHasThem)
{
    QWidget settings;
    mainMenu.addActionsTo(settings);
    key(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    key(Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
    key(Qt::Key_0, Qt::ControlModifier);
    controller.hidePanel();
    focusWindow(settings);
    key(Qt::Key_N, Qt::ControlModifier, &settings);
    key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier, &settings);
    EXPECT_EQ(performed,
        (std::vector {Command::MoveCardDown, Command::MoveCardDown, Command::ResetTextSize, Command::NewCard,
            Command::ShowPanel}));
}

TEST_F(MainMenuTest, ItemsAreEnabledWhereTheyHaveAnEffect)
{
    using enum Command;
    const auto enabled = [this] {
        refresh();
        std::vector<Command> found;
        for (const auto command : {DeleteCard, DeleteDeck, SaveCard, CancelEdit, MoveCardUp, MoveCardDown, Undo}) {
            if (mainMenu.action(command).isEnabled())
                found.push_back(command);
        }
        return found;
    };
    EXPECT_EQ(enabled(), (std::vector {DeleteCard, MoveCardDown}));
    store.moveCardDown();
    EXPECT_EQ(enabled(), (std::vector {DeleteCard, MoveCardUp, MoveCardDown, Undo}));
    store.beginEditing();
    EXPECT_EQ(enabled(), (std::vector {DeleteCard, SaveCard, CancelEdit}));
}

TEST_F(MainMenuTest, AHeldKeyMakesOneCard)
{
    key(Qt::Key_N, Qt::ControlModifier);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_N, Qt::ControlModifier, QString(), true);
    QApplication::sendEvent(panel.windowHandle(), &held);
    EXPECT_EQ(performed, std::vector {Command::NewCard});
}

TEST_F(MainMenuTest, ControlBackspaceDeletesAWordWhileEditingAndAsksForTheCardOtherwise)
{
    key(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(performed, std::vector {Command::DeleteCard});
    performed.clear();
    auto& text = editor();
    text.setPlainText(u"two words"_s);
    text.moveCursor(QTextCursor::End);
    key(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(text.toPlainText(), u"two "_s);
    EXPECT_TRUE(performed.empty());
}

TEST_F(MainMenuTest, EditCommandsActOnTheFocusedText)
{
    store.createNewDeck("Deck");
    auto& text = editor();
    text.setPlainText(u"word"_s);
    EXPECT_FALSE(mainMenu.action(Command::Undo).isEnabled());
    trigger(Command::Undo);
    EXPECT_EQ(store.deckCount(), 2) << "the store's stack is out of reach";
    using enum Command;
    const std::pair<Command, QString> steps[] = {{SelectAll, u"word"_s}, {Cut, u""_s}, {Paste, u"word"_s},
        {Paste, u"wordword"_s}, {Undo, u"word"_s}, {Undo, u""_s}, {Redo, u"word"_s}};
    for (const auto& [command, expected] : steps) {
        trigger(command);
        EXPECT_EQ(text.toPlainText(), expected) << static_cast<int>(command);
    }
    EXPECT_TRUE(mainMenu.action(Command::Undo).isEnabled());

    QLineEdit other(u"name"_s);
    other.setFocus();
    focusWindow(other);
    trigger(Command::SelectAll);
    trigger(Command::Cut);
    EXPECT_TRUE(other.text().isEmpty());
}

TEST_F(MainMenuTest, TypingRefreshesTheContentAndOnlyTheFirstLetterTheMenu)
{
    const StatusItem statusItem(context, controller, [] {});
    auto& text = editor();
    ASSERT_FALSE(mainMenu.action(Command::Undo).isEnabled());
    QTest::keyClick(&text, 'x');
    refresh();
    EXPECT_TRUE(mainMenu.action(Command::Undo).isEnabled());
    QTest::keyClick(&text, 'y');
    EXPECT_EQ(fake.mainQueue.postedCount(), 1U);
}

TEST_F(MainMenuTest, UndoOutsideTheTextRestsWhileACardIsEdited)
{
    store.addCard();
    QWidget other; // without text
    mainMenu.addActionsTo(other);
    focusWindow(other);
    EXPECT_TRUE(edit.perform(Command::Undo));
    EXPECT_EQ(store.cardCount(), 4) << "or the edit would be saved into the card before";
    EXPECT_FALSE(mainMenu.action(Command::Undo).isEnabled());
}

TEST_F(MainMenuTest, CardsStayAsTheyAreBehindAQuestion)
{
    store.addCard();
    store.saveEdit();
    QWidget other;
    mainMenu.addActionsTo(other);
    focusWindow(other);
    QMessageBox sheet(&panel);
    sheet.setWindowModality(Qt::WindowModal);
    sheet.open();
    trigger(Command::NewCard);
    trigger(Command::Undo);
    EXPECT_EQ(store.activeDeck()->cards.size(), 4U);
    EXPECT_TRUE(performed.empty());
    trigger(Command::IncreaseOpacity);
    EXPECT_EQ(performed, std::vector {Command::IncreaseOpacity}) << "what leaves the cards alone works";
    refresh();
    EXPECT_FALSE(mainMenu.action(Command::NewCard).isEnabled());
    EXPECT_TRUE(mainMenu.action(Command::IncreaseOpacity).isEnabled());
    sheet.reject();
    refresh();
    EXPECT_TRUE(mainMenu.action(Command::NewCard).isEnabled());
}

TEST_F(MainMenuTest, EditCommandsActOnTheTextWhileTheMenuBarHasFocus)
{
    auto& text = editor();
    strip.takeKeyboard();
    refresh();
    ASSERT_EQ(QApplication::focusWidget(), &strip);
    trigger(Command::SelectAll);
    EXPECT_EQ(text.textCursor().selectedText(), u"one"_s);
    EXPECT_EQ(mainMenu.action(Command::Undo).text(), u"Undo"_s);
}

} // namespace cuebright::test
