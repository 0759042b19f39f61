#include "ui/panel/HeaderView.h"
#include "ui/base/Notifications.h"

#include "ui/base/ShareStatus.h"
#include "ui/panel/DeckPicker.h"
#include "ui/panel/PanelFixture.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QLineEdit>
#include <QTest>

namespace cuebright::test {

class HeaderViewTest : public PanelFixture {
protected:
    QWidget panel;
    HeaderView header {context, &panel};
    DeckPicker& picker = header.deckPicker();

    void SetUp() override
    {
        panel.setFocusPolicy(Qt::StrongFocus);
        panel.setFocus();
        panel.resize(480, 60);
        header.setGeometry(40, 10, 400, 28);
        header.refresh();
        activate(panel);
    }
    static void choose(int item)
    {
        const auto action = openMenu()->actions().at(item);
        openMenu()->close();
        action->trigger();
    }
    static QDialog* alert() { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); }
    static QLineEdit& field() { return *alert()->findChild<QLineEdit*>(); }
    void rename() { notifications.post(kRenameDeckNotification); }
};

TEST_F(HeaderViewTest, TheBadgeSaysWhatIsKnownOfScreenShares)
{
    using enum CaptureExclusion::State;
    EXPECT_EQ(badgeFor(Excluded), (ShareBadge {"HIDDEN FROM SHARE", ColorRole::Accent}));
    EXPECT_EQ(badgeFor(Blackout), (ShareBadge {"BLACK BOX IN SHARE", ColorRole::Accent}));
    EXPECT_EQ(badgeFor(Visible), (ShareBadge {"VISIBLE IN SHARE", ColorRole::Red}));
    EXPECT_EQ(badgeFor(Unknown), (ShareBadge {"MAY BE VISIBLE IN SHARE", ColorRole::Orange}));
}

TEST_F(HeaderViewTest, APulseShowsTheBadgeForOneSecond)
{
    header.pulse();
    EXPECT_TRUE(isShown(panel, "HIDDEN FROM SHARE"));
    EXPECT_FALSE(isShown(panel, "CARD 01 / 05"));
    store.nextCard();
    header.refresh();
    fake.mainQueue.advance(Seconds(0.9));
    EXPECT_TRUE(isShown(panel, "HIDDEN FROM SHARE"));
    fake.mainQueue.advance(Seconds(0.2));
    EXPECT_TRUE(isShown(panel, "CARD 02 / 05"));
}

TEST_F(HeaderViewTest, TheMenuListsAllDecksWithTheActiveOneMarkedAndSelectedForMouseAndKeys)
{
    store.switchToDeck(1);
    store.renameDeck("R&D");
    QTest::mouseClick(&picker, Qt::LeftButton);
    ASSERT_TRUE(openMenu());
    EXPECT_TRUE(textsOf(*openMenu()).startsWith(u"    Getting Started|✓  R&&D|    "_s));
    EXPECT_EQ(openMenu()->activeAction(), openMenu()->actions()[1]);
    choose(0);
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        const auto former = store.activeDeckIndex();
        QTest::keyClick(&picker, key);
        ASSERT_TRUE(openMenu()) << key;
        QTest::keyClick(openMenu(), Qt::Key_Down);
        QTest::keyClick(openMenu(), Qt::Key_Return);
        EXPECT_FALSE(openMenu());
        EXPECT_EQ(store.activeDeckIndex(), (former + 1) % 3);
    }
}

TEST_F(HeaderViewTest, TheContextMenuOpensTheAlerts)
{
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, QPoint(), picker.mapToGlobal(QPoint()));
    QApplication::sendEvent(&picker, &byKey);
    ASSERT_TRUE(openMenu());
    EXPECT_EQ(textsOf(*openMenu()), u"New Deck…|Rename Deck…"_s);
    choose(0);
    ASSERT_TRUE(alert());
    EXPECT_EQ(alert()->windowTitle(), u"New Deck"_s);
    EXPECT_EQ(field().placeholderText(), u"Deck name"_s);
    QTest::keyClicks(&field(), u" Talk "_s);
    QTest::keyClick(&field(), Qt::Key_Return);
    EXPECT_FALSE(alert());
    EXPECT_EQ(store.deckName(), "Talk");
}

TEST_F(HeaderViewTest, TheRenameAlertStartsFromTheNameAndOpensOnce)
{
    rename();
    ASSERT_TRUE(alert());
    EXPECT_EQ(field().selectedText(), u"Getting Started"_s);
    QTest::keyClicks(&field(), u"New"_s);
    rename();
    EXPECT_EQ(field().text(), u"New"_s) << "asked again while it is open";
    QTest::keyClick(alert(), Qt::Key_Escape);
    EXPECT_FALSE(alert());
    rename();
    EXPECT_EQ(field().text(), u"Getting Started"_s);
    field().setText(u"One\ntwo"_s);
    press(*alert(), "Rename");
    EXPECT_EQ(store.deckName(), "One two");
}

} // namespace cuebright::test
