#include "panel/TimerView.h"

#include "panel/PanelFixture.h"
#include "support/EventLoop.h"

#include <QApplication>
#include <QTest>

#include <functional>

namespace cuebright::test {

namespace {

/// Counts how often a widget paints itself.
class PaintCounter final : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
    int count = 0;
};

} // namespace

class TimerViewTest : public PanelFixture {
protected:
    TimerManager timer {fake.clock, fake.mainQueue};
    QWidget panel;
    TimerView view {context, timer, &panel};

    void showPanel()
    {
        panel.setFocusPolicy(Qt::StrongFocus);
        panel.setFocus();
        panel.resize(200, 60);
        view.setGeometry(0, 0, view.sizeHint().width(), 28);
        panel.show();
        panel.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    }
    static QMenu* openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
};

TEST_F(TimerViewTest, TheButtonStartsAndPauses)
{
    EXPECT_TRUE(isShown(panel, QStringLiteral("Timer: 00:00")));
    press(panel, QStringLiteral("Start timer"));
    refresh();
    fake.mainQueue.advance(Seconds(65.2));
    EXPECT_TRUE(isShown(panel, QStringLiteral("Timer: 01:05")));
    press(panel, QStringLiteral("Pause timer"));
    fake.mainQueue.advance(Seconds(10));
    EXPECT_TRUE(isShown(panel, QStringLiteral("Timer: 01:05")));
    EXPECT_TRUE(isShown(panel, QStringLiteral("Start timer")));
}

TEST_F(TimerViewTest, TheMenuMarksWhatIsChosen)
{
    struct Row {
        const char* name;
        std::function<void()> prepare;
        QStringList checked;
    };
    const Row rows[] = {
        {"at first", [] {}, {QStringLiteral("Stopwatch")}},
        {"20 minutes", [this] { timer.setCountdown(20); }, {QStringLiteral("20 minutes")}},
        {"no preset", [this] { timer.setCountdown(7); }, {}},
        {"reset keeps it", [this] { timer.setCountdown(5), timer.reset(); }, {QStringLiteral("5 minutes")}},
        {"back", [this] { timer.setStopwatch(); }, {QStringLiteral("Stopwatch")}},
    };
    for (const auto& row : rows) {
        row.prepare();
        QStringList checked;
        for (const auto& item : timerMenuItems(timer)) {
            if (item.isChecked)
                checked.append(textOf(item));
        }
        EXPECT_EQ(checked, row.checked) << row.name;
    }
}

TEST_F(TimerViewTest, TheMenuOpensByMouseAndKeyboardAndSetsTheTimer)
{
    showPanel();
    const auto time = find(panel, QStringLiteral("Timer: 00:00"));
    EXPECT_EQ(time->toolTip(), QStringLiteral("Click to set timer duration"));
    time->setFocus();
    QTest::keyClick(time, Qt::Key_Return);
    ASSERT_TRUE(openMenu());
    QStringList texts;
    for (const auto action : openMenu()->actions())
        texts.append(action->text());
    EXPECT_EQ(texts.join(QLatin1Char('|')),
        QStringLiteral(
            "Stopwatch||5 minutes|10 minutes|15 minutes|20 minutes|30 minutes|45 minutes|60 minutes||Reset"));
    QTest::keyClick(openMenu(), Qt::Key_Down);
    QTest::keyClick(openMenu(), Qt::Key_Return);
    EXPECT_EQ(timer.countdownDuration(), Seconds(300));
    refresh();
    QTest::mouseClick(find(panel, QStringLiteral("Timer: 05:00")), Qt::LeftButton);
    ASSERT_TRUE(openMenu());
    openMenu()->close();
}

TEST_F(TimerViewTest, TabReachesBothPartsAndSpaceStarts)
{
    showPanel();
    QTest::keyClick(&panel, Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_TRUE(timer.isRunning());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), find(panel, QStringLiteral("Timer: 00:00")));
}

TEST_F(TimerViewTest, ColoursTellHowUrgentItIs)
{
    using enum TimerManager::Urgency;
    struct Row {
        TimerManager::Urgency urgency;
        Ink time;
        Ink button;
    };
    for (const auto& row : {Row {Normal, Ink::Muted, Ink::Muted}, Row {Warning, Ink::Orange, Ink::Muted},
             Row {Critical, Ink::Red, Ink::Red}, Row {Expired, Ink::Red, Ink::Red}}) {
        EXPECT_EQ(timerInk(row.urgency), row.time);
        EXPECT_EQ(playButtonInk(row.urgency), row.button);
    }
}

TEST_F(TimerViewTest, ACountdownInItsLastMinuteTurnsRed)
{
    showPanel();
    timer.setCountdown(5);
    timer.start();
    const auto redPixels = [&] {
        fake.mainQueue.runPosted();
        const auto image = view.grab().toImage();
        int red = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor pixel(image.pixel(x, y));
                red += pixel.hsvSaturation() > 150 && (pixel.hue() < 15 || pixel.hue() > 345);
            }
        }
        return red;
    };
    fake.mainQueue.advance(Seconds(239));
    EXPECT_EQ(redPixels(), 0);
    fake.mainQueue.advance(Seconds(1));
    EXPECT_GT(redPixels(), 20);
}

TEST_F(TimerViewTest, ItPaintsOnlyWhenWhatItShowsChanges)
{
    showPanel();
    processEvents();
    PaintCounter paints;
    const auto time = find(panel, QStringLiteral("Timer: 00:00"));
    time->installEventFilter(&paints);
    timer.reset();
    timer.setStopwatch();
    refresh();
    processEvents();
    EXPECT_EQ(paints.count, 0);
    timer.start();
    fake.mainQueue.advance(Seconds(1));
    EXPECT_TRUE(waitUntil([&] { return paints.count > 0; }));
}

} // namespace cuebright::test
