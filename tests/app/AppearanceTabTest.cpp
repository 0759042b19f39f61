#include "app/AppearanceTab.h"

#include "panel/PanelFixture.h"

#include <QComboBox>
#include <QSlider>
#include <QTest>

#include <array>
#include <stdexcept>

namespace cuebright::test {

class AppearanceTabTest : public PanelFixture {
protected:
    std::unique_ptr<CardStore> storeShown;
    std::unique_ptr<PanelContext> contextShown;
    std::unique_ptr<AppearanceTab> tab;

    /// With what the preferences hold at the start.
    void open()
    {
        tab.reset();
        storeShown = std::make_unique<CardStore>(fake.platform());
        contextShown.reset(new PanelContext {*storeShown, notifications, fake.platform(), fake.desktop()});
        tab = std::make_unique<AppearanceTab>(*contextShown, nullptr);
        fake.preferences.writes.clear();
    }
    QSlider& slider(const char* name) { return control<QSlider>(name); }
    QComboBox& theme() { return control<QComboBox>("Theme"); }
    bool shows(const char* text) { return isShown(*tab, QLatin1String(text)); }

private:
    template <typename Control> Control& control(const char* name)
    {
        for (const auto candidate : tab->findChildren<Control*>()) {
            if (candidate->accessibleName() == QLatin1String(name))
                return *candidate;
        }
        throw std::runtime_error(std::string("there is no control ") + name);
    }
};

TEST_F(AppearanceTabTest, ValuesAreShownAsWholeNumbersAndNotWritten)
{
    struct Case {
        double fontSize;
        std::int64_t pace;
        double opacity;
        std::array<const char*, 3> texts;
    };
    const Case cases[] = {
        {17, 140, 0.85, {"17", "140 wpm", "85%"}},
        {20.5, 133, 0.7000000000000001, {"21", "133 wpm", "70%"}},
        {2, 1, 0.7999999999999999, {"2", "1 wpm", "80%"}},
        {400, 9999, 3, {"400", "9999 wpm", "300%"}},
    };
    for (const auto& c : cases) {
        fake.preferences.setNumber(preferenceKeys::kFontSize, c.fontSize);
        fake.preferences.setInteger(preferenceKeys::kSpeakingPace, c.pace);
        fake.preferences.setNumber(preferenceKeys::kOpacity, c.opacity);
        open();
        for (const auto text : c.texts)
            EXPECT_TRUE(shows(text)) << text;
        refresh();
        EXPECT_TRUE(fake.preferences.writes.empty());
    }
}

TEST_F(AppearanceTabTest, ItFollowsWhatOthersChange)
{
    open();
    storeShown->setTheme("dark");
    storeShown->setFontSize(20);
    storeShown->setSpeakingPace(90);
    storeShown->setOpacity(0.5);
    const auto writes = fake.preferences.writes;
    refresh();
    EXPECT_EQ(theme().currentText(), QStringLiteral("Dark"));
    EXPECT_EQ(slider("Font Size").value(), 20);
    EXPECT_EQ(slider("Speaking Pace").value(), 90);
    EXPECT_EQ(slider("Opacity").value(), 50);
    for (const auto text : {"20", "90 wpm", "50%"})
        EXPECT_TRUE(shows(text)) << text;
    EXPECT_EQ(fake.preferences.writes, writes);
}

TEST_F(AppearanceTabTest, SlidersChangeTheirOwnValueAtOnce)
{
    open();
    QTest::keyClick(&slider("Font Size"), Qt::Key_Left);
    QTest::keyClick(&slider("Speaking Pace"), Qt::Key_PageUp);
    QTest::keyClick(&slider("Opacity"), Qt::Key_Left);
    EXPECT_EQ(storeShown->fontSize(), 16);
    EXPECT_EQ(storeShown->speakingPace(), 180);
    EXPECT_EQ(storeShown->opacity(), 0.99);
    for (const auto text : {"16", "180 wpm", "99%"})
        EXPECT_TRUE(shows(text)) << text;
    QTest::keyClick(&slider("Opacity"), Qt::Key_Home);
    EXPECT_EQ(storeShown->opacity(), 0.4);
}

TEST_F(AppearanceTabTest, AnUnknownThemeShowsAsSystemAndStaysUntilAnotherIsPicked)
{
    fake.preferences.setText(preferenceKeys::kTheme, "Dark");
    open();
    EXPECT_EQ(theme().currentText(), QStringLiteral("System"));
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
    EXPECT_FALSE(shows(note));
    for (const bool isReduced : {true, false}) {
        fake.accessibility.transparencyReduced = isReduced;
        fake.accessibility.changed.notify();
        refresh();
        EXPECT_EQ(shows(note), isReduced);
    }
}

} // namespace cuebright::test
