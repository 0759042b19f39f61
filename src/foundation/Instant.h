#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace cuebright {

/// A point in absolute time, to the microsecond; leap seconds are not counted.
using Instant = std::chrono::sys_time<std::chrono::microseconds>;

/// Length of the text form of an instant.
inline constexpr std::size_t kIso8601Length = 20;

/// Reads exactly `YYYY-MM-DDThh:mm:ssZ` (ISO 8601, UTC): a day of the Gregorian calendar, hours to 23, seconds to 59.
/// Fractions, offsets and lower-case letters are refused.
[[nodiscard]] std::optional<Instant> parseIso8601(std::string_view text);

/// The same form; fractions of a second are dropped towards the past. Absent outside the years 0000 to 9999.
[[nodiscard]] std::optional<std::string> iso8601(Instant instant);

/// Writes instants as text; consecutive ones of the same day are fast.
class Iso8601Writer final {
public:
    /// Writes `kIso8601Length` characters to `out`, without a terminator. Returns false and writes nothing outside
    /// the years 0000 to 9999.
    [[nodiscard]] bool write(Instant instant, char* out);

private:
    std::chrono::sys_days m_day {};
    char m_dayText[10] = {'1', '9', '7', '0', '-', '0', '1', '-', '0', '1'};
};

} // namespace cuebright
