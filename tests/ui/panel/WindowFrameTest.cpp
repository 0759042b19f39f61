#include "ui/panel/WindowFrame.h"

#include <gtest/gtest.h>

#include <vector>

namespace cuebright::test {
namespace {

constexpr QRect kPrimary(0, 0, 1920, 1080);
constexpr QRect kBelowAPanel(0, 30, 1920, 1050);
constexpr QRect kSecond(1920, -200, 1280, 1024);
constexpr QSize kMinimum(480, 360);

TEST(WindowFrame, IsKeptFromTheBottomLeftOfThePrimaryScreen)
{
    const Preferences::Numbers expected {{"x", 100}, {"y", 1080 - 50 - 560}, {"w", 720}, {"h", 560}};
    EXPECT_EQ(storedFrame({100, 50, 720, 560}, kPrimary), expected);
    const Preferences::Numbers above {{"x", 1930}, {"y", 1080 + 190 - 560}, {"w", 720}, {"h", 560}};
    EXPECT_EQ(storedFrame({1930, -190, 720, 560}, kPrimary), above);
}

TEST(WindowFrame, ComesBackToTheSamePlaceOnEveryScreen)
{
    const QRect leftPrimary(-1000, 500, 1920, 1080);
    for (const auto& primary : {kPrimary, leftPrimary}) {
        for (const QRect& frame : {QRect(100, 550, 720, 560), QRect(1930, -190, 480, 360), QRect(-300, 700, 900, 900)})
            EXPECT_EQ(restoredFrame(storedFrame(frame, primary), primary, kMinimum, {primary, kSecond}), frame);
    }
}

TEST(WindowFrame, IsRaisedToItsMinimumAndGivenUpWhereNobodySeesIt)
{
    struct Case {
        const char* name;
        Preferences::Numbers stored;
        std::optional<QRect> expected;
    };
    const std::vector<Case> cases {
        {"nothing kept", {}, std::nullopt},
        {"one number missing", {{"x", 0}, {"y", 0}, {"w", 720}}, std::nullopt},
        {"smaller than the minimum grows upwards", {{"x", 10}, {"y", 20}, {"w", 1}, {"h", -5}},
            QRect(10, 1080 - 20 - 360, 480, 360)},
        {"a corner on the screen is enough", {{"x", 1900}, {"y", -550}, {"w", 720}, {"h", 560}},
            QRect(1900, 1070, 720, 560)},
        {"parked, its title bar on the screen", {{"x", 10}, {"y", -560}, {"w", 720}, {"h", 560}},
            QRect(10, 1080, 720, 560)},
        {"only under the desktop's own panel", {{"x", 0}, {"y", 1060}, {"w", 720}, {"h", 560}}, std::nullopt},
        {"on a screen that has gone", {{"x", 4000}, {"y", 100}, {"w", 720}, {"h", 560}}, std::nullopt},
        {"beyond all numbers", {{"x", 1e300}, {"y", 0}, {"w", 720}, {"h", 560}}, std::nullopt},
    };
    for (const auto& [name, stored, expected] : cases)
        EXPECT_EQ(restoredFrame(stored, kPrimary, kMinimum, {kBelowAPanel}), expected) << name;
}

} // namespace
} // namespace cuebright::test
