#include "ui/settings/SettingsWindow.h"

#include "support/EventLoop.h"
#include "ui/panel/PanelFixture.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <functional>

namespace cuebright::test {

class SettingsWindowTest : public PanelFixture {
protected:
    int resets = 0;
    QWidget panel;
    SettingsWindow window {context, [this] { ++resets; }};

    void open()
    {
        panel.setGeometry(20, 40, 200, 200);
        window.showBeside(panel);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    QString tab() { return tabs().tabText(tabs().currentIndex()); }
    QTabWidget& tabs() { return *window.findChild<QTabWidget*>(); }
    QMessageBox* alert()
    {
        processEvents();
        return window.findChild<QMessageBox*>();
    }
};

TEST_F(SettingsWindowTest, ItFloatsBesideThePanelWithoutBeingItsChild)
{
    open();
    EXPECT_EQ(window.size(), QSize(460, 480));
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_FALSE(window.parentWidget());
    EXPECT_GT(window.frameGeometry().left(), panel.frameGeometry().right());
    EXPECT_EQ(fake.windowSystem.calls, std::vector<std::string> {"keep above"});
}

TEST_F(SettingsWindowTest, MinimisedWithASlideShowItComesBackWithoutAQuestionThatIsBelowIt)
{
    open();
    QMessageBox question(&window);
    question.setWindowModality(Qt::WindowModal);
    question.open();
    window.setWindowState(Qt::WindowMinimized);
    fake.windowSystem.minimisedWithFullScreen.notify(window.winId());
    EXPECT_TRUE(window.isVisible() && !window.isMinimized());
    EXPECT_FALSE(question.isVisible());
}

TEST_F(SettingsWindowTest, EscapeAndCtrlWPutItAwayAndOpeningBringsItBackAsItWas)
{
    open();
    const auto handle = window.winId();
    window.move(77, 88);
    open();
    EXPECT_EQ(window.pos(), QPoint(77, 88)) << "where the user has moved it";
    QTest::keyClick(window.windowHandle(), Qt::Key_PageDown, Qt::ControlModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    open();
    EXPECT_EQ(tab(), u"Appearance"_s);
    QTest::keyClick(window.windowHandle(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(window.winId(), handle);
}

TEST_F(SettingsWindowTest, TheSupportLinkIsCentred)
{
    open();
    tabs().setCurrentIndex(2);
    processEvents();
    const auto link = find(window, "support@cuebright.example.org");
    EXPECT_NEAR(link->geometry().center().x(), link->parentWidget()->rect().center().x(), 1);
}

TEST_F(SettingsWindowTest, EverythingIsResetOnlyWhenTheUserConfirmsIt)
{
    const auto pressing = [this](Qt::Key key) {
        return [this, key] {
            activate(*alert());
            QTest::keyClick(alert()->windowHandle(), key);
        };
    };
    const std::pair<std::function<void()>, int> answers[] = {{[this] { press(*alert(), "Cancel"); }, 0},
        {pressing(Qt::Key_Return), 0}, {pressing(Qt::Key_Escape), 0},
        {[this] { press(*alert(), "Reset Everything"); }, 1}};
    open();
    for (const auto& [answer, expected] : answers) {
        press(window, "Reset All Data…");
        ASSERT_TRUE(alert() && alert()->isModal());
        answer();
        EXPECT_FALSE(alert());
        EXPECT_EQ(resets, expected);
    }
}

} // namespace cuebright::test
