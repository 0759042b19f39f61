#include "ui/panel/FooterContent.h"

#include "support/Contrast.h"
#include "ui/base/ColorRole.h"
#include "ui/panel/FooterView.h"
#include "ui/panel/PanelFixture.h"
#include "ui/panel/TimerView.h"

#include <QTest>

#include <cmath>
#include <tuple>

namespace cuebright::test {

namespace {

Color over(const Color& front, const Color& back)
{
    const auto mix = [&](double f, double b) { return std::lerp(b, f, front.alpha); };
    return {mix(front.red, back.red), mix(front.green, back.green), mix(front.blue, back.blue)};
}

/// "x+width" of position, word count, timer, error, feedback and buttons; "-" if hidden.
std::string describe(const FooterPlaces& places)
{
    std::string text;
    for (const auto& place :
        {places.position, places.wordCount, places.timer, places.error, places.feedback, places.buttons})
        text += place.width == 0 ? "- " : std::to_string(place.x) + "+" + std::to_string(place.width) + " ";
    return text;
}

} // namespace

TEST(FooterPlaces, TheErrorGivesWayFirstThenTheFeedbackThenTheWordCount)
{
    constexpr FooterWidths kEverything {50, 90, 74, 260, 34, 60, 160}; // 754 with gaps
    constexpr FooterWidths kLittle {50, 0, 74, 0, 34, 60, 160};
    const std::tuple<FooterWidths, int, const char*> cases[] = {
        {kLittle, 800, "0+50 - 62+74 - 148+60 640+160 "},
        {kEverything, 800, "0+50 62+90 164+74 250+260 522+60 640+160 "},
        {kEverything, 753, "0+50 62+90 164+74 250+259 521+60 593+160 "},
        {kEverything, 527, "0+50 62+90 164+74 250+34 296+59 367+160 "},
        {kEverything, 495, "0+50 62+89 163+74 249+34 295+28 335+160 "},
        {kEverything, 433, "0+50 62+67 141+74 227+34 - 273+160 "},
        {kEverything, 393, "0+50 - 62+74 148+73 - 233+160 "},
    };
    for (const auto& [widths, available, places] : cases)
        EXPECT_EQ(describe(footerPlaces(widths, available)), places) << available;
}

TEST(ColorRole, WarningsCanBeReadInEveryLook)
{
    using Urgency = TimerManager::Urgency;
    for (const int look : {0, 1, 2, 3}) {
        const bool highContrast = look >= 2;
        const Colors colors(look % 2 == 1, highContrast);
        for (const auto ink : {ColorRole::Red, ColorRole::Orange})
            EXPECT_GE(contrast(colorFor(ink, colors), colors.warmBg()), highContrast ? 7 : 4.5)
                << static_cast<int>(ink) << look;
        for (const auto urgency : {Urgency::Warning, Urgency::Critical, Urgency::Expired})
            EXPECT_GE(
                contrast(colorFor(timerColor(urgency), colors), over(timerFill(urgency, colors), colors.warmBg())),
                highContrast ? 6.0 : 4.5)
                << static_cast<int>(urgency) << look;
    }
}

class FooterViewTest : public PanelFixture {
protected:
    TimerManager timer {fake.clock, fake.mainQueue};
    QWidget panel;
    FooterView footer {context, timer, &panel};

    void SetUp() override
    {
        panel.resize(480, 60);
        footer.setGeometry(40, 10, 400, 28);
        footer.refresh();
    }
    QRect placeOf(QAnyStringView name)
    {
        const auto widget = find(panel, name);
        return widget ? QRect(widget->mapTo(&panel, QPoint()), widget->size()) : QRect();
    }
};

TEST_F(FooterViewTest, InTheSmallestPanelNothingOverlapsAndAllKeepTheirNamesAndRoles)
{
    using enum QAccessible::Role;
    store.toggleWordCount();
    store.showFeedback("Exported to A & B, a rather long name.md");
    fake.fileSystem.writeError = "disk full";
    store.flushToDisk();
    refresh();
    footer.refresh();
    panel.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel));
    const auto wordCount = QString::fromStdString(*footerContent(store).wordCount);
    const std::pair<QString, QAccessible::Role> items[] = {{u"Card 1 of 5"_s, StaticText}, {wordCount, StaticText},
        {u"Start timer"_s, Button}, {u"Timer: 00:00"_s, Button}, {u"Not saved — check disk space"_s, AlertMessage},
        {u"Dismiss error"_s, Button}, {u"Exported to A & B, a rather long name.md"_s, AlertMessage},
        {u"Edit card"_s, Button}, {u"Previous card"_s, Button}, {u"Next card"_s, Button}};
    int right = 40;
    for (const auto& [name, role] : items) {
        const auto place = placeOf(name);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(find(panel, name))->role(), role) << name.toStdString();
        if (place.width() == 0)
            continue;
        EXPECT_GE(place.left(), right) << name.toStdString();
        right = place.left() + place.width();
    }
    EXPECT_EQ(right, 440);
    press(panel, "Dismiss error");
    EXPECT_TRUE(store.errorDismissed());
}

} // namespace cuebright::test
