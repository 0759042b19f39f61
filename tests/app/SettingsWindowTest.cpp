#include "app/SettingsWindow.h"

#include "panel/PanelFixture.h"
#include "support/EventLoop.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

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
    void answer(const char* text)
    {
        press(window, QStringLiteral("Reset All Data…"));
        ASSERT_TRUE(alert());
        EXPECT_TRUE(alert()->isModal());
        press(*alert(), QLatin1String(text));
        EXPECT_FALSE(alert());
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

TEST_F(SettingsWindowTest, EscapeAndCtrlWPutItAwayAndOpeningBringsItBackAsItWas)
{
    open();
    const auto handle = window.winId();
    QTest::keyClick(window.windowHandle(), Qt::Key_PageDown, Qt::ControlModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    open();
    EXPECT_EQ(tab(), QStringLiteral("Appearance"));
    QTest::keyClick(window.windowHandle(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(window.winId(), handle);
}

TEST_F(SettingsWindowTest, OneThatTheUserHasMovedStaysThereWhenOpenedAgain)
{
    open();
    window.move(77, 88);
    window.showBeside(panel);
    EXPECT_EQ(window.pos(), QPoint(77, 88));
}

TEST_F(SettingsWindowTest, TabsTurnByKeysInBothDirectionsAndRound)
{
    open();
    EXPECT_EQ(QApplication::focusWidget(), tabs().tabBar());
    const struct {
        Qt::Key key;
        const char* expected;
    } cases[] = {{Qt::Key_PageDown, "Appearance"}, {Qt::Key_PageDown, "About"}, {Qt::Key_PageDown, "General"},
        {Qt::Key_PageUp, "About"}, {Qt::Key_Tab, "General"}};
    for (const auto& c : cases) {
        QTest::keyClick(window.windowHandle(), c.key, Qt::ControlModifier);
        EXPECT_EQ(tab(), QLatin1String(c.expected));
    }
}

TEST_F(SettingsWindowTest, EverythingIsResetOnlyWhenTheUserConfirmsIt)
{
    open();
    answer("Cancel");
    EXPECT_EQ(resets, 0);
    answer("Reset Everything");
    EXPECT_EQ(resets, 1);
}

TEST_F(SettingsWindowTest, ReturnAndEscapeResetNothing)
{
    open();
    for (const auto key : {Qt::Key_Return, Qt::Key_Escape}) {
        press(window, QStringLiteral("Reset All Data…"));
        ASSERT_TRUE(QTest::qWaitForWindowActive(alert()));
        QTest::keyClick(alert()->windowHandle(), key);
        EXPECT_FALSE(alert());
    }
    EXPECT_EQ(resets, 0);
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
    const auto button = find(window, QStringLiteral("Reset All Data…"));
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
