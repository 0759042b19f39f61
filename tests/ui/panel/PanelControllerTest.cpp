#include "ui/panel/PanelController.h"
#include "ui/base/Notifications.h"

#include "store/PreferenceKeys.h"
#include "support/EventLoop.h"
#include "ui/panel/CardContentView.h"
#include "ui/panel/NotesPanel.h"
#include "ui/panel/PanelFixture.h"

#include <QApplication>
#include <QMessageBox>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <tuple>

namespace cuebright::test {

class PanelControllerTest : public PanelFixture {
protected:
    PanelControllerTest() { fake.accessibility.motionReduced = true; }

    PanelController& controller()
    {
        if (!m_controller)
            m_controller = std::make_unique<PanelController>(context);
        return *m_controller;
    }
    NotesPanel& panel() { return controller().panelWindow(); }
    /// As a user does with the mouse.
    void moveTo(const QPoint& position)
    {
        panel().windowHandle()->setPosition(position);
        processEvents();
    }

private:
    std::unique_ptr<PanelController> m_controller;
};

TEST_F(PanelControllerTest, WhileHidingThePanelTakesOnlyTheKeyThatTogglesIt)
{
    setCards({"one", "two"});
    controller().showPanel();
    activate(panel());
    fake.accessibility.motionReduced = false;
    controller().hidePanel();
    ASSERT_TRUE(panel().isVisible());
    for (const auto& [key, modifiers] : {std::pair(Qt::Key_E, Qt::ControlModifier), {Qt::Key_D, Qt::ControlModifier},
             {Qt::Key_Right, Qt::NoModifier}, {Qt::Key_Right, Qt::ControlModifier}})
        QTest::keyClick(panel().windowHandle(), key, modifiers);
    EXPECT_FALSE(store.isEditing());
    EXPECT_EQ(store.activeCardIndex(), 0);
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_FALSE(controller().isPanelVisible());
    QTest::keyClick(panel().windowHandle(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(controller().isPanelVisible());
}

TEST_F(PanelControllerTest, ShowingAfterMoreThanAMinutePostsTheReturn)
{
    int returns = 0;
    const auto observed = notifications.observe(kReturnAfterAbsenceNotification, [&] { ++returns; });
    fake.mainQueue.advance(Seconds(1000));
    controller().showPanel();
    EXPECT_EQ(returns, 0) << "the first show has nothing to come back from";
    const std::vector<std::pair<double, int>> cases {{59, 0}, {60, 0}, {61, 1}, {5, 1}};
    for (const auto& [away, expected] : cases) {
        notifications.post(kTogglePanelNotification);
        EXPECT_FALSE(panel().isOnScreen());
        fake.mainQueue.advance(Seconds(away));
        notifications.post(kTogglePanelNotification);
        EXPECT_TRUE(panel().isOnScreen());
        EXPECT_EQ(returns, expected) << away << " s";
    }
    panel().showMinimized();
    processEvents();
    fake.mainQueue.advance(Seconds(61));
    controller().togglePanel();
    processEvents();
    EXPECT_TRUE(controller().isPanelVisible());
    EXPECT_EQ(returns, 2) << "minimising is hiding";
}

TEST_F(PanelControllerTest, ShowingAndHidingFadeWithoutMovingTheFrame)
{
    fake.accessibility.motionReduced = false;
    store.setOpacity(0.8);
    const auto frame = panel().geometry();
    controller().showPanel();
    EXPECT_LT(panel().windowOpacity(), 0.1);
    EXPECT_TRUE(controller().content().graphicsEffect());
    EXPECT_EQ(panel().geometry(), frame);
    EXPECT_TRUE(waitUntil([&] { return panel().windowOpacity() > 0.79; }));
    EXPECT_TRUE(waitUntil([&] { return !controller().content().graphicsEffect(); }));
    controller().hidePanel();
    EXPECT_TRUE(panel().isVisible());
    EXPECT_TRUE(waitUntil([&] { return !panel().isVisible(); }));
    EXPECT_NEAR(panel().windowOpacity(), 0.8, 0.01) << "ready for the next show";
    EXPECT_EQ(panel().geometry(), frame);
}

TEST_F(PanelControllerTest, OffAllScreensItReturnsToTheMiddle)
{
    controller().showPanel();
    const auto middle = panel().geometry();
    moveTo({9000, 9000});
    ASSERT_EQ(panel().geometry().topLeft(), QPoint(9000, 9000));
    Q_EMIT qGuiApp->screenRemoved(QGuiApplication::primaryScreen()); // as if another screen was removed
    processEvents();
    EXPECT_EQ(panel().geometry(), middle);
}

TEST_F(PanelControllerTest, ATranslucentPanelBlursWhatIsBehindUnlessTransparencyIsReduced)
{
    const std::tuple<double, bool, const char*> cases[] = {
        {1.0, false, "glass off"}, {0.9, false, "glass on"}, {0.9, true, "glass off"}};
    for (const auto& [opacity, reduced, expected] : cases) {
        fake.accessibility.transparencyReduced = reduced;
        store.setOpacity(opacity);
        controller();
        fake.mainQueue.advance(Seconds(0.3));
        EXPECT_EQ(fake.windowSystem.calls.back(), expected) << opacity;
    }
    fake.accessibility.transparencyReduced = false;
    fake.accessibility.changed.notify();
    EXPECT_EQ(fake.windowSystem.calls.back(), "glass on") << "immediately";
}

TEST_F(PanelControllerTest, TheTitleFollowsTheDeckAfterAPause)
{
    EXPECT_EQ(panel().windowTitle(), u"Cuebright — Getting Started"_s);
    store.switchToDeck(1);
    store.renameDeck("[*] a&b\nc"); // notified again 0.16 s later, at the end of the switch
    fake.mainQueue.advance(Seconds(0.35));
    EXPECT_EQ(panel().windowTitle(), u"Cuebright — Getting Started"_s);
    fake.mainQueue.advance(Seconds(0.02));
    EXPECT_EQ(panel().windowTitle(), u"Cuebright — [*][*] a&b c"_s);
}

TEST_F(PanelControllerTest, WhatTheAudienceSeesIsSaidOnceItIsKnownAndTheContentVisible)
{
    using enum CaptureExclusion::State;
    const auto become = [this](CaptureExclusion::State state) {
        fake.mainQueue.advance(Seconds(10));
        fake.captureExclusion.settled = true;
        fake.captureExclusion.known = state;
        fake.captureExclusion.changed.notify();
        return store.feedbackMessage().value_or("");
    };
    fake.captureExclusion.settled = false;
    controller().setContentCovered(true);
    controller().showPanel();
    EXPECT_EQ(become(Visible), "");
    controller().setContentCovered(false);
    EXPECT_EQ(store.feedbackMessage(), "Visible in screen shares");
    EXPECT_EQ(become(Visible), "") << "said before";
    EXPECT_EQ(become(Excluded), "");
    EXPECT_EQ(become(Blackout), "Shown as a black box in screen shares");
    EXPECT_EQ(become(Excluded), "");
    EXPECT_EQ(become(Unknown), "May be visible in screen shares");
}

TEST_F(PanelControllerTest, HidingAnswersAnOpenSheetWithCancel)
{
    controller().showPanel();
    auto* const sheet = new QMessageBox(&panel());
    sheet->setWindowModality(Qt::WindowModal);
    sheet->addButton(QMessageBox::Cancel);
    std::optional<int> answer;
    QObject::connect(sheet, &QDialog::finished, sheet, [&](int result) { answer = result; });
    sheet->open();
    fake.accessibility.motionReduced = false;
    controller().hidePanel();
    EXPECT_EQ(answer, QDialog::Rejected) << "immediately";
}

} // namespace cuebright::test
