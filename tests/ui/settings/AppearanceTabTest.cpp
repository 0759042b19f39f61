#include "ui/settings/AppearanceTab.h"

#include "store/PreferenceKeys.h"
#include "ui/panel/PanelFixture.h"

#include <QComboBox>
#include <QSlider>
#include <QTest>

#include <algorithm>
#include <tuple>

namespace cuebright::test {

class AppearanceTabTest : public PanelFixture {
protected:
    std::unique_ptr<CardStore> storeShown;
    std::unique_ptr<UiContext> contextShown;
    std::unique_ptr<AppearanceTab> tab;

    /// With the current preferences.
    void open()
    {
        tab.reset();
        storeShown = std::make_unique<CardStore>(fake.platform());
        contextShown.reset(new UiContext {*storeShown, notifications, fake.platform(), fake.desktop()});
        tab = std::make_unique<AppearanceTab>(*contextShown, nullptr);
        fake.preferences.writes.clear();
    }
    QSlider& slider(const char* name)
    {
        const auto sliders = tab->findChildren<QSlider*>();
        return **std::ranges::find(sliders, QLatin1String(name), &QWidget::accessibleName);
    }
    QComboBox& theme() { return *tab->findChild<QComboBox*>(); }
    void expectShown(const std::vector<const char*>& texts)
    {
        for (const auto text : texts)
            EXPECT_TRUE(isShown(*tab, text)) << text;
    }
};

TEST_F(AppearanceTabTest, SlidersChangeTheirOwnValueAtOnceAndFollowWhatOthersChange)
{
    open();
    QTest::keyClick(&slider("Font Size"), Qt::Key_Left);
    QTest::keyClick(&slider("Speaking Pace"), Qt::Key_PageUp);
    QTest::keyClick(&slider("Opacity"), Qt::Key_Left);
    EXPECT_EQ(storeShown->fontSize(), 16);
    EXPECT_EQ(storeShown->speakingPace(), 180);
    EXPECT_EQ(storeShown->opacity(), 0.99);
    expectShown({"16", "180 wpm", "99%"});
    QTest::keyClick(&slider("Opacity"), Qt::Key_Home);
    EXPECT_EQ(storeShown->opacity(), 0.4);

    storeShown->setTheme("dark");
    storeShown->setFontSize(20);
    storeShown->setSpeakingPace(90);
    storeShown->setOpacity(0.5);
    const auto writes = fake.preferences.writes;
    refresh();
    EXPECT_EQ(theme().currentText(), u"Dark"_s);
    EXPECT_EQ(slider("Opacity").value(), 50);
    expectShown({"20", "90 wpm", "50%"});
    EXPECT_EQ(fake.preferences.writes, writes);
}

TEST_F(AppearanceTabTest, AValueOffTheScaleIsShownAsItIsAndWrittenOnlyWhenTheSliderIsMoved)
{
    fake.preferences.setInteger(preferenceKeys::kSpeakingPace, 9999);
    fake.preferences.setNumber(preferenceKeys::kFontSize, 20.5);
    open();
    expectShown({"21", "9999 wpm"});
    refresh();
    EXPECT_TRUE(fake.preferences.writes.empty());
    QTest::keyClick(&slider("Speaking Pace"), Qt::Key_End); // where the slider is already
    EXPECT_EQ(storeShown->speakingPace(), 250);
    slider("Speaking Pace").setSliderPosition(147); // as by dragging
    EXPECT_EQ(storeShown->speakingPace(), 150);
}

TEST_F(AppearanceTabTest, AnUnknownThemeShowsAsSystemAndStaysUntilAnotherIsPicked)
{
    fake.preferences.setText(preferenceKeys::kTheme, "Dark");
    open();
    EXPECT_EQ(theme().currentText(), u"System"_s);
    EXPECT_EQ(storeShown->theme(), "Dark");
    for (const auto expected : {"light", "dark"}) {
        QTest::keyClick(&theme(), Qt::Key_Down);
        EXPECT_EQ(storeShown->theme(), expected);
    }
}

TEST_F(AppearanceTabTest, ReducedTransparencyIsExplainedWhileItIsOn)
{
    const auto note = "Frosted glass is disabled because Reduce Transparency is on in System Settings.";
    open();
    for (const bool isReduced : {false, true, false}) {
        fake.accessibility.transparencyReduced = isReduced;
        fake.accessibility.changed.notify();
        refresh();
        EXPECT_EQ(isShown(*tab, note), isReduced);
    }
}

} // namespace cuebright::test
