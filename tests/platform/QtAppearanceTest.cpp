#include "platform/qt/QtAppearance.h"

#include "platform/qt/ApplicationPalette.h"
#include "support/EventLoop.h"
#include "theme/Palette.h"
#include "theme/QtColors.h"

#include <QApplication>
#include <QStyle>
#include <QToolTip>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace cuebright::test {

namespace {

using Choice = Appearance::Choice;

class QtAppearanceTest : public testing::Test {
protected:
    QtAppearanceTest() { QApplication::setPalette(QPalette()); }
    ~QtAppearanceTest() override { QApplication::setPalette(QPalette()); }

    static QColor windowColor() { return QApplication::palette().color(QPalette::Window); }
    static QColor paper(bool isDark) { return toQColor(Palette::windowBackground.resolved(isDark)); }
    static void makeDesktopDark() { QApplication::setPalette(QPalette(QColor(40, 40, 40))); }
};

/// Contrast ratio as WCAG 2 defines it.
double contrast(const QColor& a, const QColor& b)
{
    const auto luminance = [](const QColor& color) {
        const auto linear = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    };
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

TEST_F(QtAppearanceTest, EveryWidgetGetsFusionStyleAndThePapersColours)
{
    QtAppearance appearance;
    EXPECT_EQ(QApplication::style()->name(), QStringLiteral("fusion"));
    EXPECT_FALSE(appearance.isDark());
    EXPECT_EQ(windowColor(), paper(false));
    EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipText), toQColor(Palette::textPrimary.light));
}

TEST_F(QtAppearanceTest, FollowingTheSystemStartsWithTheDesktopsPalette)
{
    makeDesktopDark();
    QtAppearance appearance;
    EXPECT_TRUE(appearance.isDark());
    EXPECT_EQ(windowColor(), paper(true));
}

TEST_F(QtAppearanceTest, TheChoiceOverrulesTheSystemAndClearingItFollowsAgain)
{
    QtAppearance appearance;
    int changes = 0;
    const auto subscription = appearance.changed.subscribe([&] { ++changes; });
    struct Step {
        Choice choice;
        bool isDark;
        int changes;
    };
    const Step steps[] = {{Choice::Light, false, 0}, {Choice::Dark, true, 1}, {Choice::Dark, true, 1},
        {Choice::FollowSystem, false, 2}, {Choice::Dark, true, 3}, {Choice::Light, false, 4}};
    for (const auto& step : steps) {
        appearance.choose(step.choice);
        EXPECT_EQ(appearance.isDark(), step.isDark);
        EXPECT_EQ(windowColor(), paper(step.isDark));
        EXPECT_EQ(changes, step.changes);
    }
}

TEST_F(QtAppearanceTest, AReportOfTheSystemsSettingCountsOnlyWhileItIsFollowed)
{
    QtAppearance appearance;
    int changes = 0;
    const auto subscription = appearance.changed.subscribe([&] { ++changes; });
    appearance.setSystemIsDark(true);
    EXPECT_TRUE(appearance.isDark());
    EXPECT_EQ(changes, 1);
    appearance.choose(Choice::Light);
    appearance.setSystemIsDark(false);
    appearance.setSystemIsDark(true);
    EXPECT_EQ(changes, 2);
    appearance.choose(Choice::FollowSystem);
    EXPECT_TRUE(appearance.isDark());
    EXPECT_EQ(changes, 3);
}

TEST_F(QtAppearanceTest, AChangeOfTheDesktopsThemeIsFollowedUntilTheSystemIsReported)
{
    QWindow window;
    makeDesktopDark();
    QtAppearance appearance; // from here on the desktop is light again: its own palette shows below ours
    int changes = 0;
    const auto subscription = appearance.changed.subscribe([&] { ++changes; });
    const auto announceTheme = [&] {
        QEvent event(QEvent::ThemeChange);
        QCoreApplication::sendEvent(&window, &event);
        QCoreApplication::sendEvent(&window, &event);
        processEvents();
    };

    announceTheme();
    EXPECT_FALSE(appearance.isDark());
    EXPECT_EQ(windowColor(), paper(false));
    EXPECT_EQ(changes, 1);

    appearance.setSystemIsDark(true);
    announceTheme();
    EXPECT_TRUE(appearance.isDark());
    EXPECT_EQ(windowColor(), paper(true));
    EXPECT_EQ(changes, 2);
}

TEST_F(QtAppearanceTest, ThePaletteLeavesNoRoleToTheDesktop)
{
    for (const bool isDark : {false, true}) {
        const auto palette = applicationPalette(isDark);
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            for (int role = 0; role < QPalette::NColorRoles; ++role) {
                const bool isSet = palette.isBrushSet(group, QPalette::ColorRole(role));
                EXPECT_TRUE(isSet || role == QPalette::NoRole) << group << ' ' << role;
            }
        }
    }
}

TEST_F(QtAppearanceTest, TextsOfThePaletteCanBeRead)
{
    struct Pair {
        QPalette::ColorRole text;
        QPalette::ColorRole ground;
        double least; // 4.5 for running text, 3 for short labels and large text
    };
    const Pair pairs[] = {{QPalette::WindowText, QPalette::Window, 4.5}, {QPalette::Text, QPalette::Base, 4.5},
        {QPalette::Text, QPalette::AlternateBase, 4.5}, {QPalette::ButtonText, QPalette::Button, 4.5},
        {QPalette::ToolTipText, QPalette::ToolTipBase, 4.5}, {QPalette::HighlightedText, QPalette::Highlight, 3},
        {QPalette::Link, QPalette::Base, 3}};
    for (const bool isDark : {false, true}) {
        const auto palette = applicationPalette(isDark);
        for (const auto& pair : pairs)
            EXPECT_GE(contrast(palette.color(pair.text), palette.color(pair.ground)), pair.least)
                << isDark << pair.text;
    }
}

} // namespace cuebright::test
