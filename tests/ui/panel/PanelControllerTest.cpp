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
    void restart() { m_controller.reset(); }
    /// As a user does with the mouse.
    void moveTo(const QPoint& position)
    {
        panel().windowHandle()->setPosition(position);
        processEvents();
    }
    Preferences::Numbers savedFrame() { return fake.preferences.numbers(preferenceKeys::kWindowFrame); }

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

TEST_F(PanelControllerTest, ShowingAfterMoreThanAMinuteTellsOfTheReturn)
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
    panel().close();
    fake.mainQueue.advance(Seconds(61));
    controller().showPanel();
    EXPECT_EQ(returns, 2) << "closing is hiding";
    panel().showMinimized();
    processEvents();
    EXPECT_FALSE(controller().isPanelVisible());
    fake.mainQueue.advance(Seconds(61));
    controller().togglePanel();
    processEvents();
    EXPECT_TRUE(controller().isPanelVisible());
    EXPECT_EQ(returns, 3) << "minimising is hiding";
}

TEST_F(PanelControllerTest, ItComesAndGoesByDegreesWithItsFrameUntouched)
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

TEST_F(PanelControllerTest, ASecondThoughtTurnsTheAnimationRound)
{
    fake.accessibility.motionReduced = false;
    controller().showPanel();
    ASSERT_TRUE(waitUntil([&] { return panel().windowOpacity() > 0.5; }));
    controller().togglePanel();
    EXPECT_GT(panel().windowOpacity(), 0.3) << "it starts from what is on the screen";
    controller().togglePanel();
    EXPECT_TRUE(waitUntil([&] { return !controller().content().graphicsEffect(); }));
    EXPECT_TRUE(panel().isOnScreen());
    EXPECT_DOUBLE_EQ(panel().windowOpacity(), 1.0);
}

TEST_F(PanelControllerTest, ADragIsKeptOnceHalfASecondAfterItsEnd)
{
    controller().showPanel();
    processEvents();
    fake.mainQueue.advance(Seconds(1));
    EXPECT_TRUE(savedFrame().empty()) << "showing is not moving";
    for (const QPoint position : {QPoint(10, 10), QPoint(20, 20), QPoint(30, 40)}) {
        moveTo(position);
        fake.mainQueue.advance(Seconds(0.4));
    }
    EXPECT_TRUE(savedFrame().empty());
    fake.mainQueue.advance(Seconds(0.1));
    EXPECT_EQ(savedFrame()["x"], 30);
    controller().hidePanel();
    controller().showPanel();
    processEvents();
    fake.mainQueue.advance(Seconds(1));
    EXPECT_EQ(std::ranges::count(fake.preferences.writes, preferenceKeys::kWindowFrame), 1);

    restart();
    controller().showPanel();
    EXPECT_EQ(panel().geometry(), QRect(30, 40, 720, 560));
    moveTo({50, 60});
    restart();
    EXPECT_EQ(savedFrame()["x"], 50) << "leaving within the half second keeps the frame too";
}

TEST_F(PanelControllerTest, WhereNoScreenShowsItAnyMoreItComesToTheMiddle)
{
    controller().showPanel();
    const auto middle = panel().geometry();
    moveTo({9000, 9000});
    ASSERT_EQ(panel().geometry().topLeft(), QPoint(9000, 9000));
    Q_EMIT qGuiApp->screenRemoved(QGuiApplication::primaryScreen()); // as if there had been another
    processEvents();
    EXPECT_EQ(panel().geometry(), middle);
}

TEST_F(PanelControllerTest, GlassIsBehindATranslucentPanelUnlessTransparencyIsUnwanted)
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
    EXPECT_EQ(fake.windowSystem.calls.back(), "glass on") << "at once, when the user changes his mind";
}

TEST_F(PanelControllerTest, TheTitleFollowsTheDeckAfterAPause)
{
    EXPECT_EQ(panel().windowTitle(), u"Cuebright — Getting Started"_s);
    store.switchToDeck(1);
    store.renameDeck("[*] a&b\nc"); // and once more 0.16 s later, when the switch is over
    fake.mainQueue.advance(Seconds(0.35));
    EXPECT_EQ(panel().windowTitle(), u"Cuebright — Getting Started"_s);
    fake.mainQueue.advance(Seconds(0.02));
    EXPECT_EQ(panel().windowTitle(), u"Cuebright — [*][*] a&b c"_s);
}

TEST_F(PanelControllerTest, ItOpensInItsSizeAndShrinksNoFurtherThanItsMinimum)
{
    controller().showPanel();
    EXPECT_EQ(panel().windowOpacity(), 1.0) << "at once where less motion is wanted";
    EXPECT_EQ(panel().size(), QSize(720, 560));
    panel().resize(100, 100);
    EXPECT_EQ(panel().size(), QSize(480, 360));
}

TEST_F(PanelControllerTest, TheFirstShowTellsWhatTheAudienceSeesOnceThatIsKnown)
{
    using enum CaptureExclusion::State;
    const std::pair<CaptureExclusion::State, std::optional<std::string>> cases[] = {{Excluded, std::nullopt},
        {Blackout, "Shown as a black box in screen shares"}, {Visible, "Visible in screen shares"},
        {Unknown, "May be visible in screen shares"}};
    for (const auto& [state, expected] : cases) {
        restart();
        fake.captureExclusion.settled = false;
        fake.captureExclusion.known = Unknown;
        controller().showPanel();
        EXPECT_EQ(store.feedbackMessage(), std::nullopt);
        fake.captureExclusion.settled = true;
        fake.captureExclusion.known = state;
        fake.captureExclusion.changed.notify();
        EXPECT_EQ(store.feedbackMessage(), expected);
        fake.mainQueue.advance(Seconds(10));
        controller().showPanel();
        fake.captureExclusion.changed.notify();
        EXPECT_EQ(store.feedbackMessage(), std::nullopt) << "once";
    }
}

TEST_F(PanelControllerTest, WhatTheAudienceSeesIsToldWhenItCanBeReadAndAgainWhenProtectionIsLost)
{
    using enum CaptureExclusion::State;
    controller().setContentCovered(true);
    fake.captureExclusion.known = Visible;
    controller().showPanel();
    EXPECT_EQ(store.feedbackMessage(), std::nullopt);
    controller().setContentCovered(false);
    EXPECT_EQ(store.feedbackMessage(), "Visible in screen shares");
    fake.captureExclusion.known = Excluded;
    fake.captureExclusion.changed.notify();
    fake.mainQueue.advance(Seconds(10));
    fake.captureExclusion.known = Unknown;
    fake.captureExclusion.changed.notify();
    EXPECT_EQ(store.feedbackMessage(), "May be visible in screen shares");
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
    EXPECT_EQ(answer, QDialog::Rejected) << "at once, whatever moves";
}

} // namespace cuebright::test
