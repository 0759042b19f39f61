#include "foundation/Instant.h"

#include <gtest/gtest.h>

namespace cuebright {

namespace {

using namespace std::chrono_literals;

constexpr Instant day(int year, unsigned month, unsigned dayOfMonth)
{
    return std::chrono::sys_days(std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(dayOfMonth));
}

} // namespace

TEST(Instant, RealDatesReadAndWriteTheSame)
{
    const std::pair<std::string_view, Instant> cases[] = {
        {"2026-11-16T01:21:19Z", day(2026, 11, 16) + 1h + 21min + 19s},
        {"1970-01-01T00:00:00Z", Instant {}},
        {"1969-12-31T23:59:59Z", Instant(-1s)},
        {"2024-02-29T23:59:59Z", day(2024, 3, 1) - 1s},
        {"2000-02-29T12:00:00Z", day(2000, 2, 29) + 12h},
        {"0000-01-01T00:00:00Z", day(0, 1, 1)},
        {"9999-12-31T23:59:59Z", day(10000, 1, 1) - 1s},
    };
    for (const auto& [text, instant] : cases) {
        EXPECT_EQ(parseIso8601(text), instant) << text;
        EXPECT_EQ(iso8601(instant), text);
    }
}

TEST(Instant, EveryOtherFormIsRefused)
{
    constexpr std::string_view kBad[] = {"", " ", "2026-11-16", "2026-11-16T01:21:19", "2026-11-16T01:21:19z",
        "2026-11-16t01:21:19Z", "2026-11-16 01:21:19Z", "2026-11-16T01:21:19.5Z", "2026-11-16T01:21:19.000Z",
        "2026-11-16T01:21:19+00:00", "2026-11-16T01:21:19Z ", " 2026-11-16T01:21:19Z", "20261116T012119Z",
        "2026-11-16T01:21Z", "+2026-11-16T01:21:19", "2026-1-016T01:21:19Z", "2026-11-16T 1:21:19Z",
        "2026-11-16T-1:21:19Z", "2026-11-16T24:00:00Z", "2026-11-16T23:60:00Z", "2026-11-16T23:59:60Z",
        "2026-00-16T01:21:19Z", "2026-13-16T01:21:19Z", "2026-11-00T01:21:19Z", "2026-11-31T01:21:19Z",
        "2026-02-30T01:21:19Z", "2025-02-29T01:21:19Z", "1900-02-29T01:21:19Z"};
    for (const auto text : kBad)
        EXPECT_FALSE(parseIso8601(text)) << text;
}

TEST(Instant, FractionsAreRoundedDownAndOnlyFourDigitYearsHaveText)
{
    EXPECT_EQ(iso8601(Instant(999'999us)), "1970-01-01T00:00:00Z");
    EXPECT_EQ(iso8601(Instant(-1us)), "1969-12-31T23:59:59Z");
    constexpr Instant kWrapping(std::chrono::days(23'950'000)); // a year that 16 bits would wrap to 2007
    for (const auto instant : {day(0, 1, 1) - 1us, day(10000, 1, 1), kWrapping, Instant::min(), Instant::max()})
        EXPECT_FALSE(iso8601(instant)) << instant.time_since_epoch().count();
}

} // namespace cuebright
