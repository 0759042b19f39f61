#include "ui/settings/SettingSlider.h"

#include "ui/panel/PanelFixture.h"

#include <QSlider>
#include <QTest>

#include <tuple>

namespace cuebright::test {

namespace {

constexpr SliderScale kTens {80, 250, 10, 50};
constexpr SliderScale kHundredths {40, 100, 1, 10, 100};

} // namespace

TEST(SliderScale, AnyValueHasANearestPosition)
{
    const std::tuple<SliderScale, double, int> cases[] = {{kTens, 130, 130}, {kTens, 134, 130}, {kTens, 135, 140},
        {kTens, 249, 250}, {kTens, 1, 80}, {kTens, 9e18, 250}, {kHundredths, 0.7000000000000001, 70},
        {kHundredths, 0.7999999999999999, 80}, {kHundredths, 0.05, 40}, {kHundredths, 1e300, 100}};
    for (const auto& [scale, value, position] : cases)
        EXPECT_EQ(scale.nearest(value), position) << value;
}

class SettingSliderTest : public PanelFixture {
protected:
    double value = 0;
    std::vector<double> writes;
    std::unique_ptr<SettingSlider> row;
    QSlider* slider = nullptr;

    void open(double stored)
    {
        value = stored;
        writes.clear();
        row = std::make_unique<SettingSlider>(context,
            SettingSlider::Setting {u"Pace"_s, kTens, [](double v) { return QString::number(v); },
                [this] { return value; }, [this](double v) { writes.push_back(value = v); }},
            nullptr);
        slider = row->findChild<QSlider*>();
    }
};

TEST_F(SettingSliderTest, AValueOffTheScaleIsWrittenOnlyWhenTheUserMovesTheSlider)
{
    open(9999);
    EXPECT_EQ(slider->value(), 250);
    value = 133;
    row->refresh();
    EXPECT_EQ(slider->value(), 130);
    EXPECT_TRUE(writes.empty());
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(writes, std::vector {140.0});

    open(9999); // the slider stands at its end already
    QTest::keyClick(slider, Qt::Key_End);
    QTest::keyClick(slider, Qt::Key_End);
    EXPECT_EQ(writes, std::vector {250.0});
}

TEST_F(SettingSliderTest, TheMouseAndTheScreenReaderLandOnSteps)
{
    open(130);
    slider->setSliderPosition(147); // as dragging does
    EXPECT_EQ(slider->value(), 150);
    EXPECT_EQ(writes, std::vector {150.0});

    const auto interface = QAccessible::queryAccessibleInterface(slider);
    EXPECT_EQ(interface->text(QAccessible::Name), u"Pace"_s);
    interface->valueInterface()->setCurrentValue(92);
    EXPECT_EQ(slider->value(), 90);
    EXPECT_EQ(writes, (std::vector {150.0, 90.0}));
    EXPECT_EQ(interface->text(QAccessible::Description), u"90"_s);
}

} // namespace cuebright::test
