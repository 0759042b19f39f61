#include "ui/panel/CardContentView.h"

#include "ui/card/BlockAccessible.h"
#include "ui/panel/PanelFixture.h"

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>

namespace cuebright::test {

/// A card view on screen.
class CardContentViewTest : public PanelFixture {
protected:
    CardContentView view {context};
    CardArea& area = *view.findChild<CardArea*>();

    void SetUp() override
    {
        view.resize(720, 560);
        view.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    }
    QScrollBar& bar() { return *area.verticalScrollBar(); }
    void key(Qt::Key key)
    {
        QTest::keyClick(&area, key);
        refresh();
    }
    static std::string longCard(int lines)
    {
        std::string content;
        for (int i = 0; i < lines; ++i)
            content += "- point " + std::to_string(i) + "\n";
        return content;
    }
};

TEST_F(CardContentViewTest, OnlyWhatItShowsRefreshesIt)
{
    refresh();
    store.setOpacity(0.5);
    store.setTheme("light");
    EXPECT_EQ(fake.mainQueue.postedCount(), 0U);
    store.setFontSize(20);
    store.setEditText("typed");
    EXPECT_EQ(fake.mainQueue.postedCount(), 1U);
}

TEST_F(CardContentViewTest, PageKeysScrollFirstAndThenStep)
{
    setCards({longCard(60), longCard(60), "a card that fits"});
    key(Qt::Key_PageDown);
    EXPECT_EQ(store.activeCardIndex(), 0);
    const int scrolled = bar().value();
    EXPECT_GT(scrolled, 0);
    store.showFeedback("Hello");
    store.increaseFontSize();
    refresh();
    EXPECT_EQ(bar().value(), scrolled) << "the same card stays where it is scrolled";
    for (int i = 0; i < 20 && store.activeCardIndex() == 0; ++i)
        key(Qt::Key_PageDown);
    EXPECT_EQ(store.activeCardIndex(), 1);
    EXPECT_EQ(bar().value(), 0) << "another card opens at its top";
    key(Qt::Key_End);
    key(Qt::Key_PageDown);
    EXPECT_EQ(store.activeCardIndex(), 2);
    key(Qt::Key_PageUp);
    EXPECT_EQ(store.activeCardIndex(), 1) << "there was nothing to scroll";
}

TEST_F(CardContentViewTest, AnEditThatFollowsAnotherInTheSameTurnOpensWithItsOwnText)
{
    setCards({"# one", "# two"});
    store.beginEditing();
    refresh();
    const auto editor = view.findChild<QPlainTextEdit*>();
    EXPECT_EQ(editor->textCursor().selectedText(), u"one"_s);
    store.saveEdit();
    store.nextCard();
    store.beginEditing();
    refresh();
    EXPECT_EQ(editor->toPlainText(), u"# two"_s);
    EXPECT_EQ(editor->textCursor().selectedText(), u"two"_s);
}

TEST_F(CardContentViewTest, AMoveIsAnimatedAndWithReducedMotionItIsNot)
{
    setCards({"one", "two"});
    const auto picture = [&] { return area.grab().toImage(); };
    const auto before = picture();
    store.nextCard();
    refresh();
    EXPECT_EQ(picture(), before) << "the first frame is what was on the screen";
    EXPECT_TRUE(QTest::qWaitFor([&] { return picture() != before; }));

    fake.accessibility.motionReduced = true;
    store.prevCard();
    refresh();
    EXPECT_EQ(picture(), before);
}

TEST_F(CardContentViewTest, LinksAreReachedByTabAndReadWithTheirBlock)
{
    setCards({"# A title that is one line in a wide panel\n[a](http://a.example) and [b](javascript:x)"});
    area.setFocus();
    const auto spoken = QAccessible::queryAccessibleInterface(&area);
    const auto block = spoken->child(1);
    for (const int link : {0, 1}) {
        QTest::keyClick(&area, Qt::Key_Tab);
        EXPECT_EQ(spoken->focusChild(), block->child(link));
    }
    QTest::keyClick(&area, Qt::Key_Tab);
    EXPECT_FALSE(area.hasFocus());
    EXPECT_LT(spoken->child(0)->rect().bottom(), block->rect().top() + 1);
    ASSERT_EQ(block->childCount(), 2);
    EXPECT_EQ(block->child(0)->role(), QAccessible::Link);
    EXPECT_FALSE(block->child(0)->state().disabled);
    EXPECT_TRUE(block->child(1)->state().disabled) << "a link that does nothing says so";

    view.resize(400, 560); // the title takes two lines now
    EXPECT_GE(spoken->child(1)->child(0)->rect().top(), spoken->child(1)->rect().top());
}

TEST_F(CardContentViewTest, TabComesToEverythingInTheOrderInWhichItIsRead)
{
    activate(view);
    const auto names = [&] {
        QStringList found;
        const auto first = QApplication::focusWidget();
        do {
            found << QApplication::focusWidget()->accessibleName();
            const bool isEditor = qobject_cast<QPlainTextEdit*>(QApplication::focusWidget());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, isEditor ? Qt::ControlModifier : Qt::NoModifier);
        } while (QApplication::focusWidget() != first && found.size() < 30);
        return found.join(u", "_s).toStdString();
    };
    view.takeFocus();
    EXPECT_EQ(names(), "Card content, Start timer, Timer: 00:00, Edit card, Next card, Active deck: Getting Started");
    store.beginEditing();
    refresh();
    EXPECT_EQ(names(),
        "Card text, Start timer, Timer: 00:00, Cancel editing, Save card, Active deck: Getting Started, Bold (⌘B), "
        "Italic (⌘I), Heading, Bullet list, Numbered list, Inline code, Link, Blockquote");
}

TEST_F(CardContentViewTest, ADisabledButtonGivesItsFocusToTheCard)
{
    activate(view);
    store.nextCard();
    refresh();
    const auto previous = find(view, "Previous card");
    previous->setFocus();
    for (int press = 0; press < 3; ++press) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        refresh();
    }
    EXPECT_EQ(store.activeCardIndex(), 0);
    EXPECT_TRUE(area.hasFocus());
}

TEST_F(CardContentViewTest, WithoutACardThereIsNothingAndNothingBreaks)
{
    setCards({});
    EXPECT_TRUE(isShown(view, "Card content"));
    EXPECT_EQ(area.cardLayout(), nullptr);
    key(Qt::Key_PageDown);
    key(Qt::Key_End);
    QTest::mouseDClick(area.viewport(), Qt::LeftButton);
    EXPECT_FALSE(store.isEditing());
}

} // namespace cuebright::test
