#include "platform/qt/QtAppearance.h"

#include "platform/qt/ApplicationPalette.h"
#include "platform/qt/QtColors.h"
#include "platform/qt/QtWindowEvents.h"
#include "support/Contrast.h"
#include "support/EventLoop.h"

#include <QApplication>
#include <QWindow>

#include <gtest/gtest.h>

#include <tuple>

namespace cuebright::test {

namespace {

class QtAppearanceTest : public testing::Test {
protected:
    /// With this palette as the desktop's.
    void start(const QPalette& desktop = {})
    {
        QApplication::setPalette(desktop);
        appearance.emplace(windowEvents);
        subscription = appearance->changed.subscribe([this] { ++changes; });
    }
    ~QtAppearanceTest() override { QApplication::setPalette(QPalette()); }
    /// Checks darkness, the matching palette and the number of changes.
    void expect(bool isDark, int changed)
    {
        EXPECT_EQ(std::pair(appearance->isDark(), changes), std::pair(isDark, changed));
        const auto paper = toQColor(Palette::windowBackground.resolved(isDark));
        EXPECT_EQ(QApplication::palette().color(QPalette::Window), paper);
    }

    QtWindowEvents windowEvents;
    std::optional<QtAppearance> appearance;
    int changes = 0;
    Subscription subscription;
};

} // namespace

TEST_F(QtAppearanceTest, TheChoiceOverrulesTheSystemWhoseReportsCountOnlyWhileItIsFollowed)
{
    start();
    using enum Appearance::Choice;
    const std::tuple<std::optional<bool>, Appearance::Choice, bool, int> steps[] = {{{}, Light, false, 0},
        {{}, Dark, true, 1}, {{}, Dark, true, 1}, {{}, FollowSystem, false, 2}, {true, FollowSystem, true, 3},
        {{}, Light, false, 4}, {true, Light, false, 4}, {{}, FollowSystem, true, 5}, {false, FollowSystem, false, 6}};
    for (const auto& [reported, choice, isDark, changed] : steps) {
        if (reported)
            appearance->setSystemIsDark(*reported);
        appearance->choose(choice);
        expect(isDark, changed);
    }
}

TEST_F(QtAppearanceTest, TheDesktopsPaletteIsFollowedUntilTheSystemIsReported)
{
    QWindow window;
    const auto announceTheme = [&] {
        QEvent event(QEvent::ThemeChange);
        QCoreApplication::sendEvent(&window, &event);
        QCoreApplication::sendEvent(&window, &event);
        processEvents();
    };
    start(QPalette(QColor(40, 40, 40)));
    expect(true, 0); // from here on the desktop is light again
    announceTheme();
    expect(false, 1);
    appearance->setSystemIsDark(true);
    announceTheme();
    expect(true, 2);
}

TEST_F(QtAppearanceTest, ThePaletteLeavesNoRoleToTheDesktop)
{
    for (const bool isDark : {false, true}) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            for (int role = 0; role < QPalette::NColorRoles; ++role) {
                const bool isSet = applicationPalette(isDark).isBrushSet(group, QPalette::ColorRole(role));
                EXPECT_TRUE(isSet || role == QPalette::NoRole) << group << ' ' << role;
            }
        }
    }
}

TEST_F(QtAppearanceTest, TextsOfThePaletteCanBeRead)
{
    // 4.5 is for running text, 3 for short labels and large text.
    const std::tuple<QPalette::ColorRole, QPalette::ColorRole, double> pairs[] = {
        {QPalette::WindowText, QPalette::Window, 4.5}, {QPalette::Text, QPalette::Base, 4.5},
        {QPalette::Text, QPalette::AlternateBase, 4.5}, {QPalette::ButtonText, QPalette::Button, 4.5},
        {QPalette::ToolTipText, QPalette::ToolTipBase, 4.5}, {QPalette::HighlightedText, QPalette::Highlight, 3},
        {QPalette::Link, QPalette::Base, 3}};
    for (const bool isDark : {false, true}) {
        const auto color = [palette = applicationPalette(isDark)](QPalette::ColorRole role) {
            const auto shown = palette.color(role);
            return Color {shown.redF(), shown.greenF(), shown.blueF()};
        };
        for (const auto& [text, ground, least] : pairs)
            EXPECT_GE(contrast(color(text), color(ground)), least) << isDark << text;
    }
}

} // namespace cuebright::test
