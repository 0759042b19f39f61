#include "panel/CardContentView.h"

#include "panel/BlockAccessible.h"
#include "panel/PanelFixture.h"

#include <QScrollBar>
#include <QTest>

namespace cuebright::test {

/// A card view on the screen, with the card area in it.
class CardAreaTest : public PanelFixture {
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
    QStringList spoken()
    {
        const auto interface = QAccessible::queryAccessibleInterface(&area);
        QStringList texts;
        for (int i = 0; i < interface->childCount(); ++i)
            texts << interface->child(i)->text(QAccessible::Name);
        return texts;
    }
};

TEST_F(CardAreaTest, PageKeysScrollFirstAndThenStep)
{
    setCards({longCard(60), "second", longCard(60)});
    key(Qt::Key_PageDown);
    EXPECT_EQ(store.activeCardIndex(), 0);
    EXPECT_GT(bar().value(), 0);
    for (int i = 0; i < 20 && store.activeCardIndex() == 0; ++i)
        key(Qt::Key_PageDown);
    EXPECT_EQ(store.activeCardIndex(), 1);
    key(Qt::Key_PageDown);
    EXPECT_EQ(store.activeCardIndex(), 2) << "a card that fits has nothing to scroll";
    EXPECT_EQ(bar().value(), 0) << "another card opens at its top";
    key(Qt::Key_PageUp);
    EXPECT_EQ(store.activeCardIndex(), 1);
}

TEST_F(CardAreaTest, TheSameCardStaysWhereItIsScrolled)
{
    setCards({longCard(60), "second"});
    key(Qt::Key_PageDown);
    const int scrolled = bar().value();
    store.showFeedback("Hello");
    store.increaseFontSize();
    refresh();
    EXPECT_EQ(bar().value(), scrolled);
}

TEST_F(CardAreaTest, TheEndOfALongCardIsReachedAtOnce)
{
    setCards({longCard(3000)});
    key(Qt::Key_End);
    EXPECT_EQ(bar().value(), bar().maximum());
    EXPECT_NEAR(bar().maximum(), area.cardLayout()->height() - area.viewport()->height(), 1);
}

TEST_F(CardAreaTest, AMoveIsAnimatedAndWithReducedMotionItIsNot)
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

TEST_F(CardAreaTest, EveryBlockIsReadWithItsLabel)
{
    setCards({"# Title *x*\n- point\n3. Ship **it**\n> So `it` is\ntext", "two"});
    EXPECT_EQ(spoken(),
        QStringList({QStringLiteral("Title x"), QStringLiteral("point"), QStringLiteral("3. Ship **it**"),
            QStringLiteral("Quote: So `it` is"), QStringLiteral("text")}));
    const auto interface = QAccessible::queryAccessibleInterface(&area);
    EXPECT_EQ(interface->child(0)->role(), QAccessible::Heading);
    EXPECT_LT(interface->child(0)->rect().bottom(), interface->child(1)->rect().top() + 1);
    store.nextCard();
    refresh();
    EXPECT_EQ(spoken(), QStringList(QStringLiteral("two")));
}

TEST_F(CardAreaTest, LinksAreReachedByTabAndReadWithTheirBlock)
{
    setCards({"[a](http://a.example) and [b](javascript:x)"});
    area.setFocus();
    QTest::keyClick(&area, Qt::Key_Tab);
    QTest::keyClick(&area, Qt::Key_Tab);
    EXPECT_TRUE(area.hasFocus());
    QTest::keyClick(&area, Qt::Key_Tab);
    EXPECT_FALSE(area.hasFocus());
    const auto block = QAccessible::queryAccessibleInterface(&area)->child(0);
    ASSERT_EQ(block->childCount(), 2);
    EXPECT_EQ(block->child(0)->role(), QAccessible::Link);
    EXPECT_FALSE(block->child(0)->state().disabled);
    EXPECT_TRUE(block->child(1)->state().disabled) << "a link that does nothing says so";
}

TEST_F(CardAreaTest, WithoutACardThereIsNothingAndNothingBreaks)
{
    setCards({});
    EXPECT_TRUE(isShown(view, QStringLiteral("Card content")));
    EXPECT_EQ(area.cardLayout(), nullptr);
    key(Qt::Key_PageDown);
    key(Qt::Key_End);
    QTest::mouseDClick(area.viewport(), Qt::LeftButton);
    EXPECT_FALSE(store.isEditing());
}

} // namespace cuebright::test
