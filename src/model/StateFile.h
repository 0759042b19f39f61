#pragma once

#include "model/AppState.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

/// The state file's format: one JSON object (RFC 8259) in UTF-8.
///
/// Dates are `YYYY-MM-DDThh:mm:ssZ`, identifiers 36-character UUIDs. Decoding is all or nothing.
namespace cuebright {

/// Spare capacity, in bytes, that lets `decodeState` parse a text in place instead of copying it.
inline constexpr std::size_t kDecodePadding = 64;

/// The state in `json`; absent if that is not valid UTF-8 or JSON, a required member is missing, or any member has the
/// wrong type, an invalid date or an invalid UUID. A leading byte-order mark is skipped; unknown members are ignored;
/// of duplicate members the first counts. Numbers beyond 64 bits or a double and nesting beyond 1,024 are refused.
[[nodiscard]] std::optional<AppState> decodeState(const std::string& json);

struct EncodeError {
    std::string description; ///< one line, for the log
};

/// The parts of the state that are saved, by reference to avoid a copy.
struct StateToEncode {
    const std::vector<Deck>& decks; ///< all texts valid UTF-8
    std::optional<Uuid> activeDeckId;
    std::int64_t activeCardIndex;
    double opacity;
    double fontSize;
};

/// The state as text: keys sorted, two-space indent, a blank on both sides of the colon, slashes escaped, shortest
/// numbers, no line feed at the end. Fails on a number that JSON cannot hold and on a date outside the years 0 to 9999.
/// Reuses the memory of `recycled`, whatever its content: a long text is then written twice as fast.
[[nodiscard]] std::variant<std::string, EncodeError> encodeState(const StateToEncode& state, std::string recycled = {});

} // namespace cuebright
