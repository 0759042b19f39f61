#include "foundation/Instant.h"

#include <algorithm>

namespace cuebright {

namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

std::optional<int> parseDigits(std::string_view text)
{
    int value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9')
            return std::nullopt;
        value = value * 10 + (c - '0');
    }
    return value;
}

void writeTwoDigits(char* out, unsigned value)
{
    out[0] = static_cast<char>('0' + value / 10);
    out[1] = static_cast<char>('0' + value % 10);
}

} // namespace

std::optional<Instant> parseIso8601(std::string_view text)
{
    if (text.size() != kIso8601Length || text[4] != '-' || text[7] != '-' || text[10] != 'T' || text[13] != ':'
        || text[16] != ':' || text[19] != 'Z')
        return std::nullopt;
    const auto year = parseDigits(text.substr(0, 4));
    const auto month = parseDigits(text.substr(5, 2));
    const auto day = parseDigits(text.substr(8, 2));
    const auto hour = parseDigits(text.substr(11, 2));
    const auto minute = parseDigits(text.substr(14, 2));
    const auto second = parseDigits(text.substr(17, 2));
    if (!year || !month || !day || !hour || !minute || !second || *hour > 23 || *minute > 59 || *second > 59)
        return std::nullopt;
    const year_month_day date {std::chrono::year(*year), std::chrono::month(static_cast<unsigned>(*month)),
        std::chrono::day(static_cast<unsigned>(*day))};
    if (!date.ok())
        return std::nullopt;
    return Instant(sys_days(date)) + std::chrono::hours(*hour) + std::chrono::minutes(*minute)
        + std::chrono::seconds(*second);
}

bool Iso8601Writer::write(Instant instant, char* out)
{
    const auto day = std::chrono::floor<std::chrono::days>(instant);
    if (day != m_day) {
        const year_month_day date(day);
        const int year = static_cast<int>(date.year());
        // std::chrono::year wraps outside its range, so the day is checked too.
        if (year < 0 || year > 9999 || sys_days(date) != day)
            return false;
        writeTwoDigits(m_dayText, static_cast<unsigned>(year) / 100);
        writeTwoDigits(m_dayText + 2, static_cast<unsigned>(year) % 100);
        writeTwoDigits(m_dayText + 5, static_cast<unsigned>(date.month()));
        writeTwoDigits(m_dayText + 8, static_cast<unsigned>(date.day()));
        m_day = day;
    }
    const auto seconds = std::chrono::floor<std::chrono::seconds>(instant - day).count();
    std::copy(std::begin(m_dayText), std::end(m_dayText), out);
    out[10] = 'T';
    writeTwoDigits(out + 11, static_cast<unsigned>(seconds / 3600));
    out[13] = ':';
    writeTwoDigits(out + 14, static_cast<unsigned>(seconds / 60 % 60));
    out[16] = ':';
    writeTwoDigits(out + 17, static_cast<unsigned>(seconds % 60));
    out[19] = 'Z';
    return true;
}

std::optional<std::string> iso8601(Instant instant)
{
    std::string text(kIso8601Length, '\0');
    if (!Iso8601Writer().write(instant, text.data()))
        return std::nullopt;
    return text;
}

} // namespace cuebright
