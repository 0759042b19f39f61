#include "panel/HeaderView.h"

#include "panel/DeckPicker.h"
#include "panel/PanelFixture.h"
#include "panel/ShareNotice.h"

#include <QContextMenuEvent>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
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
    }
    void showPanel()
    {
        panel.show();
        panel.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    }
    static QMenu* openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    static QStringList textsOf(const QMenu& menu)
    {
        QStringList texts;
        for (const auto action : menu.actions())
            texts.append(action->text());
        return texts;
    }
    static void choose(const QString& text)
    {
        const auto menu = openMenu();
        ASSERT_TRUE(menu);
        for (const auto action : menu->actions()) {
            if (action->text() == text) {
                menu->close();
                return action->trigger();
            }
        }
        ADD_FAILURE() << "no item " << text.toStdString();
    }
    static QDialog* alert() { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); }
    static QLineEdit& field() { return *alert()->findChild<QLineEdit*>(); }
    void rename() { notifications.post(kRenameDeckNotification); }
};

TEST_F(HeaderViewTest, TheBadgeSaysWhatIsKnownOfScreenShares)
{
    using enum CaptureExclusion::State;
    EXPECT_EQ(badgeFor(Excluded), (ShareBadge {"HIDDEN FROM SHARE", Ink::Accent}));
    EXPECT_EQ(badgeFor(Blackout), (ShareBadge {"BLACK BOX IN SHARE", Ink::Accent}));
    EXPECT_EQ(badgeFor(Visible), (ShareBadge {"VISIBLE IN SHARE", Ink::Red}));
    EXPECT_EQ(badgeFor(Unknown), (ShareBadge {"MAY BE VISIBLE IN SHARE", Ink::Orange}));
}

TEST_F(HeaderViewTest, APulseShowsTheBadgeForOneSecond)
{
    header.pulse();
    EXPECT_TRUE(isShown(panel, QStringLiteral("HIDDEN FROM SHARE")));
    EXPECT_FALSE(isShown(panel, QStringLiteral("CARD 01 / 05")));
    store.nextCard();
    header.refresh();
    fake.mainQueue.advance(Seconds(0.9));
    EXPECT_TRUE(isShown(panel, QStringLiteral("HIDDEN FROM SHARE")));
    fake.mainQueue.advance(Seconds(0.2));
    EXPECT_TRUE(isShown(panel, QStringLiteral("CARD 02 / 05")));
}

TEST_F(HeaderViewTest, ALongNameIsCutOnTheScreenOnly)
{
    const std::string name(500, 'W');
    showPanel();
    store.renameDeck(name);
    header.refresh();
    QApplication::sendPostedEvents();
    EXPECT_TRUE(isShown(panel, QStringLiteral("Active deck: ") + QString::fromStdString(name)));
    EXPECT_LE(header.minimumSizeHint().width(), 400);
    EXPECT_EQ(picker.geometry().right(), 399) << "flush with the column";
    EXPECT_GE(picker.x(), find(panel, QStringLiteral("CARD 01 / 05"))->geometry().right());
}

TEST_F(HeaderViewTest, TheMenuListsAllDecksWithTheActiveOneMarkedAndSelected)
{
    showPanel();
    store.switchToDeck(1);
    store.renameDeck("R&D");
    QTest::mouseClick(&picker, Qt::LeftButton);
    ASSERT_TRUE(openMenu());
    EXPECT_EQ(textsOf(*openMenu())[0], QStringLiteral("    Getting Started"));
    EXPECT_EQ(textsOf(*openMenu())[1], QStringLiteral("✓  R&&D"));
    EXPECT_EQ(openMenu()->activeAction(), openMenu()->actions()[1]);
    choose(QStringLiteral("    Getting Started"));
    EXPECT_EQ(store.activeDeckIndex(), 0);
}

TEST_F(HeaderViewTest, SpaceAndReturnOpenTheMenu)
{
    showPanel();
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        store.switchToDeck(1);
        QTest::keyClick(&picker, key);
        ASSERT_TRUE(openMenu()) << key;
        QTest::keyClick(openMenu(), Qt::Key_Down);
        QTest::keyClick(openMenu(), Qt::Key_Return);
        EXPECT_FALSE(openMenu());
        EXPECT_EQ(store.activeDeckIndex(), 2);
    }
}

TEST_F(HeaderViewTest, TheKeyboardShowsAroundThePicker)
{
    showPanel();
    const auto before = panel.grab().toImage();
    picker.setFocus();
    const auto after = panel.grab().toImage();
    EXPECT_NE(before, after);
    const int right = header.geometry().right() + 4;
    const int middle = header.geometry().center().y();
    EXPECT_NE(before.pixel(right, middle), after.pixel(right, middle)) << "outside the column";
}

TEST_F(HeaderViewTest, TheContextMenuOpensTheAlerts)
{
    showPanel();
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, QPoint(), picker.mapToGlobal(QPoint()));
    QApplication::sendEvent(&picker, &byKey);
    ASSERT_TRUE(openMenu());
    EXPECT_EQ(textsOf(*openMenu()), (QStringList {QStringLiteral("New Deck…"), QStringLiteral("Rename Deck…")}));
    choose(QStringLiteral("New Deck…"));
    ASSERT_TRUE(alert());
    EXPECT_EQ(alert()->windowTitle(), QStringLiteral("New Deck"));
    EXPECT_EQ(alert()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(field().placeholderText(), QStringLiteral("Deck name"));
    QTest::keyClicks(&field(), QStringLiteral(" Talk "));
    QTest::keyClick(&field(), Qt::Key_Return);
    EXPECT_FALSE(alert());
    EXPECT_EQ(store.deckName(), "Talk");
    EXPECT_EQ(store.deckCount(), 4);
}

TEST_F(HeaderViewTest, TheRenameAlertStartsFromTheName)
{
    showPanel();
    rename();
    ASSERT_TRUE(alert());
    EXPECT_EQ(field().text(), QStringLiteral("Getting Started"));
    EXPECT_EQ(field().selectedText(), field().text());
    QTest::keyClicks(&field(), QStringLiteral("New"));
    rename();
    EXPECT_EQ(field().text(), QStringLiteral("New")) << "asked again while it is open";
    QTest::keyClick(alert(), Qt::Key_Escape);
    EXPECT_FALSE(alert());
    EXPECT_EQ(store.deckName(), "Getting Started");
    rename();
    EXPECT_EQ(field().text(), QStringLiteral("Getting Started"));
    field().setText(QStringLiteral("One\ntwo"));
    press(*alert(), QStringLiteral("Rename"));
    EXPECT_EQ(store.deckName(), "One two");
}

TEST_F(HeaderViewTest, ABlankNameRenamesNothing)
{
    showPanel();
    rename();
    field().clear();
    QTest::keyClick(&field(), Qt::Key_Return);
    EXPECT_FALSE(alert());
    EXPECT_EQ(store.deckName(), "Getting Started");
}

TEST_F(HeaderViewTest, AHundredDecksScroll)
{
    showPanel();
    for (int i = 0; i < 100; ++i)
        store.createNewDeck("Deck " + std::to_string(i));
    QTest::mouseClick(&picker, Qt::LeftButton);
    ASSERT_TRUE(openMenu());
    EXPECT_EQ(openMenu()->activeAction(), openMenu()->actions().back());
    const auto& menu = *openMenu();
    const auto first = menu.actionGeometry(menu.actions().front());
    const auto last = menu.actionGeometry(menu.actions().back());
    EXPECT_EQ(first.left(), last.left()) << "one column";
    EXPECT_LE(menu.height(), menu.screen()->availableGeometry().height());
    EXPECT_TRUE(menu.rect().intersects(last)) << "the active deck is in sight";
    openMenu()->close();
}

} // namespace cuebright::test
