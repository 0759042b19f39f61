#include "panel/CardContentView.h"

#include "panel/PanelFixture.h"

#include <QPlainTextEdit>
#include <QTest>

namespace cuebright::test {

class CardContentViewTest : public PanelFixture {
protected:
    CardContentView view {context};

    QPlainTextEdit& editor() { return *view.findChild<QPlainTextEdit*>(); }
};

TEST_F(CardContentViewTest, TheColumnIsCentredAndNeverTouchesTheEdges)
{
    EXPECT_EQ(CardContentView::columnPadding(700), 50);
    EXPECT_EQ(CardContentView::columnPadding(701), 51) << "the column is never wider than 600";
    EXPECT_EQ(CardContentView::columnPadding(1000), 200);
    EXPECT_EQ(CardContentView::columnPadding(500), 40);
}

TEST_F(CardContentViewTest, EverythingHasAName)
{
    for (const auto name : {"CARD 01 / 05", "Active deck: Getting Started", "Card content", "Card 1 of 5", "Edit card",
             "Previous card", "Next card"})
        EXPECT_TRUE(isShown(view, QLatin1String(name))) << name;
    store.beginEditing();
    refresh();
    for (const auto name : {"Cancel editing", "Save card"})
        EXPECT_TRUE(isShown(view, QLatin1String(name))) << name;
    for (const auto name : {"Edit card", "Previous card", "Next card", "Card content"})
        EXPECT_FALSE(isShown(view, QLatin1String(name))) << name;
}

TEST_F(CardContentViewTest, ButtonsMoveEditSaveAndCancel)
{
    EXPECT_FALSE(find(view, QStringLiteral("Previous card"))->isEnabled());
    press(view, QStringLiteral("Next card"));
    refresh();
    EXPECT_EQ(store.activeCardIndex(), 1);
    EXPECT_TRUE(isShown(view, QStringLiteral("Card 2 of 5")));
    press(view, QStringLiteral("Previous card"));
    press(view, QStringLiteral("Edit card"));
    refresh();
    editor().setPlainText(QStringLiteral("new"));
    press(view, QStringLiteral("Save card"));
    refresh();
    EXPECT_EQ(store.activeCard()->content, "new");
    press(view, QStringLiteral("Edit card"));
    refresh();
    editor().setPlainText(QStringLiteral("other"));
    press(view, QStringLiteral("Cancel editing"));
    refresh();
    EXPECT_EQ(store.activeCard()->content, "new");
    EXPECT_TRUE(isShown(view, QStringLiteral("Discarded")));
}

TEST_F(CardContentViewTest, TheEditorOpensWhereWritingStarts)
{
    setCards({"# Title\n\ntext", "plain", ""});
    store.beginEditing();
    refresh();
    EXPECT_EQ(editor().textCursor().selectedText(), QStringLiteral("Title"));
    store.cancelEdit();
    store.nextCard();
    store.beginEditing();
    refresh();
    EXPECT_FALSE(editor().textCursor().hasSelection());
    EXPECT_EQ(editor().textCursor().position(), 0);
    store.cancelEdit();
    store.nextCard();
    store.beginEditing();
    refresh();
    EXPECT_EQ(editor().textCursor().position(), 2) << "after the \"# \" of a blank card";
}

TEST_F(CardContentViewTest, OpeningAnEditAltersNothing)
{
    const std::string text = "a\u00a0b \n\n";
    setCards({text});
    store.beginEditing();
    refresh();
    EXPECT_EQ(store.editText(), text);
    QTest::keyClicks(&editor(), QStringLiteral("x"));
    EXPECT_EQ(store.editText(), "x" + text);
}

TEST_F(CardContentViewTest, AnEditOpenedAndClosedInOneTurnShowsTheNextTextAfresh)
{
    setCards({"one", "two"});
    store.beginEditing();
    refresh();
    store.saveEdit();
    store.nextCard();
    store.beginEditing();
    refresh();
    EXPECT_EQ(editor().toPlainText(), QStringLiteral("two"));
}

TEST_F(CardContentViewTest, ASaveErrorStaysUntilDismissed)
{
    fake.fileSystem.writeError = "disk full";
    store.flushToDisk();
    refresh();
    EXPECT_TRUE(isShown(view, QStringLiteral("Not saved — check disk space")));
    store.dismissError();
    refresh();
    EXPECT_FALSE(isShown(view, QStringLiteral("Not saved — check disk space")));
}

} // namespace cuebright::test
