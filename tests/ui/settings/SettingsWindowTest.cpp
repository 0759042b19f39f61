#include "ui/settings/SettingsWindow.h"

#include "support/EventLoop.h"
#include "ui/panel/PanelFixture.h"

#include <QApplication>
#include <QLabel>
#include <QMenuBar>
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

TEST_F(SettingsWindowTest, WithAMenuBarItIsOnTheScreenFromTheFirstTimeOn)
{
    window.addMenuBar().addMenu(u"File"_s);
    const auto screen = window.screen()->availableGeometry();
    panel.setGeometry(20, screen.bottom() - 360, 200, 360);
    window.showBeside(panel);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_GT(window.height(), 480) << "below the bar there is as much room as without";
    EXPECT_LE(window.geometry().bottom(), screen.bottom());
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

TEST_F(SettingsWindowTest, TabsTurnByKeysInBothDirectionsAndRound)
{
    open();
    EXPECT_EQ(QApplication::focusWidget(), tabs().tabBar());
    const std::pair<Qt::Key, QString> cases[] = {{Qt::Key_PageDown, u"Appearance"_s}, {Qt::Key_PageDown, u"About"_s},
        {Qt::Key_PageDown, u"General"_s}, {Qt::Key_PageUp, u"About"_s}, {Qt::Key_Tab, u"General"_s}};
    for (const auto& [key, expected] : cases) {
        QTest::keyClick(window.windowHandle(), key, Qt::ControlModifier);
        EXPECT_EQ(tab(), expected);
    }
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

TEST_F(SettingsWindowTest, AllTextFitsAndTheWholeGeneralTabCanBeScrolledTo)
{
    fake.captureExclusion.known = CaptureExclusion::State::Visible;
    fake.accessibility.transparencyReduced = true;
    fake.captureExclusion.changed.notify();
    fake.accessibility.changed.notify();
    refresh();
    open();
    for (int i = 0; i < tabs().count(); ++i) {
        tabs().setCurrentIndex(i);
        processEvents();
        for (const auto label : tabs().widget(i)->findChildren<QLabel*>()) {
            EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->text().toStdString();
            EXPECT_LE(label->mapTo(&window, QPoint(label->width(), 0)).x(), window.width());
        }
    }
    tabs().setCurrentIndex(0);
    const auto button = find(window, "Reset All Data…");
    QTest::keyClick(tabs().currentWidget(), Qt::Key_PageDown);
    QTest::keyClick(tabs().currentWidget(), Qt::Key_PageDown);
    EXPECT_EQ(button->visibleRegion().boundingRect(), button->rect());
}

TEST_F(SettingsWindowTest, WhatTheAudienceSeesIsToldUnlessItIsNothing)
{
    const auto advice = QStringLiteral("This desktop cannot hide a window from a shared screen. Share a single window "
                                       "or tab instead of the whole screen.");
    using enum CaptureExclusion::State;
    for (const auto state : {Excluded, Visible, Unknown, Excluded, Blackout}) {
        fake.captureExclusion.known = state;
        fake.captureExclusion.changed.notify();
        EXPECT_EQ(isShown(window, advice), state != Excluded);
    }
}

} // namespace cuebright::test
