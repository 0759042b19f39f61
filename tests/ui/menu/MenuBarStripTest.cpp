#include "ui/menu/MenuFixture.h"

namespace cuebright::test {

using MenuBarStripTest = MenuFixture;

TEST_F(MenuBarStripTest, ShowsWhileThePanelHasFocusOrPointer)
{
    EXPECT_TRUE(waitUntil([&] { return strip.fade() == 1; }));
    QWidget other;
    focusWindow(other);
    ASSERT_TRUE(waitUntil([&] { return strip.fade() == 0; }));
    EXPECT_TRUE(strip.isVisible()) << "hidden it would have no keys";
    const auto picture = panel.grab(QRect(0, 0, panel.width(), 40)).toImage();
    auto plain = picture;
    plain.fill(picture.pixelColor(0, 0));
    EXPECT_EQ(picture, plain);
    EXPECT_NE(panel.childAt(strip.geometry().center()), &strip);
    const QPointF spot(200, 200);
    QEnterEvent enter(spot, spot, spot);
    QApplication::sendEvent(&panel, &enter);
    EXPECT_TRUE(waitUntil([&] { return strip.fade() == 1; }));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&panel, &leave);
    EXPECT_TRUE(waitUntil([&] { return strip.fade() == 0; }));
}

TEST_F(MenuBarStripTest, AltAndF10FocusItAndEscapeReturnsTheFocus)
{
    const auto before = QApplication::focusWidget();
    key(Qt::Key_F10);
    EXPECT_EQ(QApplication::focusWidget(), &strip);
    EXPECT_EQ(strip.activeAction(), strip.actions().constFirst());
    key(Qt::Key_Right);
    EXPECT_EQ(store.activeCardIndex(), 0) << "the arrows belong to the menus now";
    EXPECT_EQ(strip.activeAction(), strip.actions().at(1));
    key(Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), before);
    QTest::keyPress(panel.windowHandle(), Qt::Key_Alt, Qt::AltModifier);
    QTest::keyRelease(panel.windowHandle(), Qt::Key_Alt);
    EXPECT_EQ(QApplication::focusWidget(), &strip);
}

} // namespace cuebright::test
