#include "panel/FooterContent.h"

#include "panel/CardContentView.h"
#include "panel/FooterView.h"
#include "panel/Ink.h"
#include "panel/PanelFixture.h"
#include "panel/TimerView.h"
#include "support/EventLoop.h"

#include <QAbstractButton>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <ostream>

namespace cuebright {

void PrintTo(const FooterPlaces::Place& place, std::ostream* out) { *out << place.x << "+" << place.width; }

namespace test {

namespace {

double luminance(const Color& color)
{
    const auto linear = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

double contrast(const Color& a, const Color& b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

Color over(const Color& front, const Color& back)
{
    const auto mix = [&](double f, double b) { return std::lerp(b, f, front.alpha); };
    return {mix(front.red, back.red), mix(front.green, back.green), mix(front.blue, back.blue)};
}

constexpr FooterWidths kEverything {50, 90, 74, 260, 34, 60, 160};

} // namespace

TEST(FooterPlaces, StandInTheirOrderTwelveApartWithTheButtonsAtTheEnd)
{
    const auto places = footerPlaces(kEverything, 800);
    EXPECT_EQ(places.position, (FooterPlaces::Place {0, 50}));
    EXPECT_EQ(places.wordCount, (FooterPlaces::Place {62, 90}));
    EXPECT_EQ(places.timer, (FooterPlaces::Place {164, 74}));
    EXPECT_EQ(places.error, (FooterPlaces::Place {250, 260}));
    EXPECT_EQ(places.feedback, (FooterPlaces::Place {522, 60}));
    EXPECT_EQ(places.buttons, (FooterPlaces::Place {640, 160}));
}

TEST(FooterPlaces, WhatIsAbsentLeavesNoGap)
{
    const auto places = footerPlaces({50, 0, 74, 0, 34, 60, 160}, 800);
    EXPECT_EQ(places.timer, (FooterPlaces::Place {62, 74}));
    EXPECT_EQ(places.feedback, (FooterPlaces::Place {148, 60}));
}

TEST(FooterPlaces, TheErrorGivesWayFirstThenTheFeedbackThenTheWordCount)
{
    struct Row {
        int available;
        int error;
        int feedback;
        int wordCount;
    };
    // 754 is what all of it wants.
    for (const auto& row : {Row {754, 260, 60, 90}, Row {753, 259, 60, 90}, Row {528, 34, 60, 90},
             Row {527, 34, 59, 90}, Row {496, 34, 28, 90}, Row {495, 34, 28, 89}, Row {434, 34, 28, 28},
             Row {433, 34, 0, 67}, Row {393, 73, 0, 0}}) {
        const auto places = footerPlaces(kEverything, row.available);
        EXPECT_EQ(places.error.width, row.error) << row.available;
        EXPECT_EQ(places.feedback.width, row.feedback) << row.available;
        EXPECT_EQ(places.wordCount.width, row.wordCount) << row.available;
        EXPECT_EQ(places.position.width, 50) << row.available;
        EXPECT_EQ(places.timer.width, 74) << row.available;
        EXPECT_EQ(places.buttons.width, 160) << row.available;
        EXPECT_GE(places.buttons.x, places.error.x + places.error.width + kFooterGap) << row.available;
    }
}

TEST(Ink, WarningsCanBeReadInEveryLook)
{
    FakeAccessibility accessibility;
    using Urgency = TimerManager::Urgency;
    for (const bool isDark : {false, true}) {
        for (const bool highContrast : {false, true}) {
            accessibility.contrastIncreased = highContrast;
            const Colors colors(isDark, accessibility);
            const double wanted = highContrast ? 7 : 4.5;
            for (const auto ink : {Ink::Red, Ink::Orange})
                EXPECT_GE(contrast(inkColor(ink, colors), colors.warmBg()), wanted)
                    << static_cast<int>(ink) << isDark << highContrast;
            for (const auto urgency : {Urgency::Warning, Urgency::Critical, Urgency::Expired})
                EXPECT_GE(
                    contrast(inkColor(timerInk(urgency), colors), over(timerFill(urgency, colors), colors.warmBg())),
                    highContrast ? 6.0 : 4.5)
                    << static_cast<int>(urgency) << isDark << highContrast;
        }
    }
}

class FooterViewTest : public PanelFixture {
protected:
    TimerManager timer {fake.clock, fake.mainQueue};
    QWidget panel;
    FooterView footer {context, timer, &panel};
    QString error = QStringLiteral("Not saved — check disk space");

    void SetUp() override
    {
        panel.resize(480, 60);
        footer.setGeometry(40, 10, 400, 28);
        footer.refresh();
    }
    void failToSave()
    {
        fake.fileSystem.writeError = "disk full";
        store.flushToDisk();
        refresh();
        footer.refresh();
    }
    void showPanel()
    {
        panel.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel));
    }
    QRect placeOf(const QString& name)
    {
        const auto widget = find(panel, name);
        return widget ? QRect(widget->mapTo(&panel, QPoint()), widget->size()) : QRect();
    }
};

TEST_F(FooterViewTest, InTheSmallestPanelNothingOverlapsAndAllKeepTheirNames)
{
    store.toggleWordCount();
    store.showFeedback("Exported to A rather long name.md");
    failToSave();
    showPanel();
    const QStringList names {QStringLiteral("Card 1 of 5"), QString::fromStdString(*footerContent(store).wordCount),
        QStringLiteral("Start timer"), QStringLiteral("Timer: 00:00"), error, QStringLiteral("Dismiss error"),
        QStringLiteral("Exported to A rather long name.md"), QStringLiteral("Edit card"),
        QStringLiteral("Previous card"), QStringLiteral("Next card")};
    int right = 40;
    for (const auto& name : names) {
        const auto place = placeOf(name);
        if (place.width() == 0)
            continue;
        EXPECT_GE(place.left(), right) << name.toStdString();
        right = place.left() + place.width();
    }
    EXPECT_EQ(right, 440);
}

TEST_F(FooterViewTest, AMessageFadesOutWithItsTextAndThenIsGone)
{
    showPanel();
    store.showFeedback("Saved");
    footer.refresh();
    ASSERT_TRUE(isShown(panel, QStringLiteral("Saved")));
    fake.mainQueue.advance(Seconds(2.1));
    footer.refresh();
    EXPECT_TRUE(isShown(panel, QStringLiteral("Saved"))) << "still fading";
    EXPECT_TRUE(waitUntil([&] { return !isShown(panel, QStringLiteral("Saved")); }));
}

TEST_F(FooterViewTest, AMessageThatComesBackWhileItFadesStays)
{
    showPanel();
    store.showFeedback("Saved");
    footer.refresh();
    fake.mainQueue.advance(Seconds(2.1));
    footer.refresh();
    store.showFeedback("Renamed");
    footer.refresh();
    const auto saved = panel.grab().toImage();
    EXPECT_TRUE(waitUntil([&] { return panel.grab().toImage() != saved; })) << "fades in";
    EXPECT_TRUE(isShown(panel, QStringLiteral("Renamed")));
}

TEST_F(FooterViewTest, ANewMessageTakesThePlaceOfAFadingError)
{
    showPanel();
    panel.resize(1000, 60);
    footer.setGeometry(40, 10, 900, 28);
    failToSave();
    const int place = placeOf(error).left();
    store.dismissError();
    store.showFeedback("Saved");
    footer.refresh();
    EXPECT_LE(std::abs(placeOf(QStringLiteral("Saved")).left() - place), 12) << "without a jump afterwards";
}

TEST_F(FooterViewTest, TheErrorIsDismissedByItsButton)
{
    failToSave();
    ASSERT_TRUE(isShown(panel, error));
    press(panel, QStringLiteral("Dismiss error"));
    footer.refresh();
    EXPECT_FALSE(isShown(panel, error));
    EXPECT_FALSE(isShown(panel, QStringLiteral("Dismiss error")));
}

TEST_F(FooterViewTest, AScreenReaderKnowsMessagesFromOtherTexts)
{
    store.toggleWordCount();
    store.showFeedback("Saved & sound");
    failToSave();
    const auto roleOf = [this](const QString& name) {
        const auto widget = find(panel, name);
        return widget ? QAccessible::queryAccessibleInterface(widget)->role() : QAccessible::NoRole;
    };
    EXPECT_EQ(roleOf(QStringLiteral("Saved & sound")), QAccessible::AlertMessage);
    EXPECT_EQ(roleOf(error), QAccessible::AlertMessage);
    EXPECT_EQ(roleOf(QStringLiteral("Card 1 of 5")), QAccessible::StaticText);
    EXPECT_EQ(roleOf(QString::fromStdString(*footerContent(store).wordCount)), QAccessible::StaticText);
}

TEST_F(FooterViewTest, TheButtonsFollowTheMode)
{
    setCards({"only"});
    footer.refresh();
    EXPECT_FALSE(find(panel, QStringLiteral("Previous card"))->isEnabled());
    EXPECT_FALSE(find(panel, QStringLiteral("Next card"))->isEnabled());
    store.beginEditing();
    footer.refresh();
    EXPECT_TRUE(isShown(panel, QStringLiteral("Cancel editing")));
    EXPECT_EQ(placeOf(QStringLiteral("Save card")).right(), 439);
    EXPECT_FALSE(isShown(panel, QStringLiteral("Next card")));
}

} // namespace test
} // namespace cuebright
