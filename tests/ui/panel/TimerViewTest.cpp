#include "ui/panel/TimerView.h"

#include "support/EventLoop.h"
#include "ui/panel/PanelFixture.h"

#include <QApplication>
#include <QTest>

#include <functional>
#include <tuple>

namespace cuebright::test {

class TimerViewTest : public PanelFixture {
protected:
    TimerManager timer {fake.clock, fake.mainQueue};
    QWidget panel;
    TimerView view {context, timer, &panel};

    void SetUp() override
    {
        panel.setFocusPolicy(Qt::StrongFocus);
        panel.setFocus();
        panel.resize(200, 60);
        view.setGeometry(0, 0, view.sizeHint().width(), 28);
        activate(panel);
    }
};

TEST_F(TimerViewTest, TheMenuMarksWhatIsChosen)
{
    const std::tuple<const char*, std::function<void()>, QString> cases[] = {
        {"at first", [] {}, u"Stopwatch"_s},
        {"20 minutes", [this] { timer.setCountdown(20); }, u"20 minutes"_s},
        {"no preset", [this] { timer.setCountdown(7); }, u""_s},
        {"reset keeps it", [this] { timer.setCountdown(5), timer.reset(); }, u"5 minutes"_s},
        {"back", [this] { timer.setStopwatch(); }, u"Stopwatch"_s},
    };
    for (const auto& [name, prepare, expected] : cases) {
        prepare();
        QString checked;
        for (const auto& item : timerMenuItems(timer))
            checked += item.isChecked ? textOf(item) : QString();
        EXPECT_EQ(checked, expected) << name;
    }
}

TEST_F(TimerViewTest, TheMenuOpensByMouseAndKeyboardAndSetsTheTimer)
{
    const auto time = find(panel, "Timer: 00:00");
    EXPECT_EQ(time->toolTip(), u"Click to set timer duration"_s);
    time->setFocus();
    QTest::keyClick(time, Qt::Key_Return);
    ASSERT_TRUE(openMenu());
    EXPECT_EQ(textsOf(*openMenu()),
        u"Stopwatch||5 minutes|10 minutes|15 minutes|20 minutes|30 minutes|45 minutes|60 minutes||Reset"_s);
    QTest::keyClick(openMenu(), Qt::Key_Down);
    QTest::keyClick(openMenu(), Qt::Key_Return);
    EXPECT_EQ(timer.countdownDuration(), Seconds(300));
    refresh();
    QTest::mouseClick(find(panel, "Timer: 05:00"), Qt::LeftButton);
    ASSERT_TRUE(openMenu());
    openMenu()->close();
}

TEST_F(TimerViewTest, ACountdownInItsLastMinuteTurnsRed)
{
    timer.setCountdown(5);
    timer.start();
    const auto redPixels = [&] {
        fake.mainQueue.runPosted();
        const auto image = view.grab().toImage();
        int red = 0;
        for (int i = 0; i < image.width() * image.height(); ++i) {
            const QColor pixel(image.pixel(i % image.width(), i / image.width()));
            red += pixel.hsvSaturation() > 150 && (pixel.hue() < 15 || pixel.hue() > 345);
        }
        return red;
    };
    fake.mainQueue.advance(Seconds(239));
    EXPECT_EQ(redPixels(), 0);
    fake.mainQueue.advance(Seconds(1));
    EXPECT_GT(redPixels(), 20);
}

} // namespace cuebright::test
