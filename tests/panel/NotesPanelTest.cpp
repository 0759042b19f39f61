#include "panel/NotesPanel.h"

#include "panel/PanelController.h"
#include "panel/PanelFixture.h"
#include "store/UndoManager.h"

#include <QPlainTextEdit>
#include <QTest>
#include <QWindow>

namespace cuebright::test {

class NotesPanelTest : public PanelFixture {
protected:
    PanelController controller {context};
    NotesPanel& panel = controller.panelWindow();

    void SetUp() override
    {
        controller.showPanel();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel));
    }
    /// Presses a key as the window system does.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(panel.windowHandle(), key, modifiers);
        refresh();
    }
};

TEST_F(NotesPanelTest, TheTitleFollowsTheDeckAfterAPause)
{
    EXPECT_EQ(panel.windowTitle(), u"Cuebright — Getting Started"_s);
    store.switchToDeck(1); // and once more 0.16 s later, when the switch is over
    fake.mainQueue.advance(Seconds(0.35));
    EXPECT_EQ(panel.windowTitle(), u"Cuebright — Getting Started"_s);
    fake.mainQueue.advance(Seconds(0.02));
    EXPECT_EQ(panel.windowTitle(), u"Cuebright — Product Demo"_s);
}

TEST_F(NotesPanelTest, ItOpensInItsSizeAndShrinksNoFurtherThanItsMinimum)
{
    EXPECT_EQ(panel.size(), QSize(720, 560));
    panel.resize(100, 100);
    EXPECT_EQ(panel.size(), QSize(480, 360));
}

TEST_F(NotesPanelTest, ArrowsBelongToTheEditorWhileEditing)
{
    setCards({"ab", "cd"});
    key(Qt::Key_E, Qt::ControlModifier);
    ASSERT_TRUE(store.isEditing());
    key(Qt::Key_Right);
    EXPECT_EQ(store.activeCardIndex(), 0);
    EXPECT_EQ(panel.findChild<QPlainTextEdit*>()->textCursor().position(), 1);
    key(Qt::Key_Escape);
    EXPECT_FALSE(store.isEditing());
}

TEST_F(NotesPanelTest, UndoIsTheTextsWhileEditingAndTheStoresOtherwise)
{
    setCards({"ab", "cd"});
    store.moveCardDown();
    key(Qt::Key_E, Qt::ControlModifier);
    const auto editor = panel.findChild<QPlainTextEdit*>();
    editor->insertPlainText(u"x"_s);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor->toPlainText(), u"ab"_s);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(store.activeCardIndex(), 1)
        << "nothing is left to undo in the text, and the store's stack is not reached";
    key(Qt::Key_Escape);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(store.activeCardIndex(), 0);
    key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(store.activeCardIndex(), 1);
}

TEST_F(NotesPanelTest, AskingToDeleteNeedsTwoCards)
{
    int asked = 0;
    const auto observed = notifications.observe(kDeleteCardNotification, [&] { ++asked; });
    setCards({"only"});
    key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(asked, 0);
    setCards({"one", "two"});
    key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(asked, 1);
}

} // namespace cuebright::test
