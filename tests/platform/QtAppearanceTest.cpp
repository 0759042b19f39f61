#include "platform/qt/QtAppearance.h"

#include "platform/Contrast.h"
#include "platform/qt/ApplicationPalette.h"
#include "support/EventLoop.h"
#include "theme/QtColors.h"

#include <QApplication>
#include <QProxyStyle>
#include <QToolTip>
#include <QWindow>

#include <gtest/gtest.h>

#include <tuple>

namespace cuebright::test {

namespace {

using Choice = Appearance::Choice;

class QtAppearanceTest : public testing::Test {
protected:
    QtAppearanceTest() { QApplication::setPalette(QPalette()); }
    ~QtAppearanceTest() override { QApplication::setPalette(QPalette()); }

    QtAppearance& appearance()
    {
        if (!m_appearance) {
            m_appearance.emplace();
            m_subscription = m_appearance->changed.subscribe([this] { ++m_changes; });
        }
        return *m_appearance;
    }
    /// Whether it is dark, with the papers' colours to match, and how often that has changed.
    void expect(bool isDark, int changes)
    {
        EXPECT_EQ(appearance().isDark(), isDark);
        const auto paper = toQColor(Palette::windowBackground.resolved(isDark));
        EXPECT_EQ(QApplication::palette().color(QPalette::Window), paper);
        EXPECT_EQ(m_changes, changes);
    }
    static void makeDesktopDark() { QApplication::setPalette(QPalette(QColor(40, 40, 40))); }

private:
    std::optional<QtAppearance> m_appearance;
    int m_changes = 0;
    Subscription m_subscription;
};

} // namespace

TEST_F(QtAppearanceTest, EveryWidgetGetsFusionStyleAndThePapersColours)
{
    expect(false, 0);
    const auto style = qobject_cast<QProxyStyle*>(QApplication::style());
    ASSERT_TRUE(style);
    EXPECT_EQ(style->baseStyle()->name(), QStringLiteral("fusion"));
    EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipText), toQColor(Palette::textPrimary.light));
}

TEST_F(QtAppearanceTest, TheChoiceOverrulesTheSystemAndClearingItFollowsAgain)
{
    const std::tuple<Choice, bool, int> steps[] = {{Choice::Light, false, 0}, {Choice::Dark, true, 1},
        {Choice::Dark, true, 1}, {Choice::FollowSystem, false, 2}, {Choice::Dark, true, 3}, {Choice::Light, false, 4}};
    for (const auto& [choice, isDark, changes] : steps) {
        appearance().choose(choice);
        expect(isDark, changes);
    }
}

TEST_F(QtAppearanceTest, AReportOfTheSystemsSettingCountsOnlyWhileItIsFollowed)
{
    appearance().setSystemIsDark(true);
    expect(true, 1);
    appearance().choose(Choice::Light);
    appearance().setSystemIsDark(false);
    appearance().setSystemIsDark(true);
    expect(false, 2);
    appearance().choose(Choice::FollowSystem);
    expect(true, 3);
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
    makeDesktopDark();
    expect(true, 0); // from here on the desktop is light again: its own palette shows below ours
    announceTheme();
    expect(false, 1);
    appearance().setSystemIsDark(true);
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
