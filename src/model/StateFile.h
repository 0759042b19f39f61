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

/// Bytes that must be readable behind the text given to `decodeState`, else it copies the text first.
inline constexpr std::size_t kDecodePadding = 64;

/// The state in `json`, or absent when it is not valid UTF-8 or JSON, misses a required member, or holds one of the
/// wrong kind, a bad date or a bad UUID anywhere. A leading byte-order mark is skipped; unknown members are ignored;
/// of duplicate members the first counts. Numbers beyond 64 bits or a double and nesting beyond 1,024 are refused.
/// A `json` with a capacity of at least its size plus `kDecodePadding` is read in place.
[[nodiscard]] std::optional<AppState> decodeState(const std::string& json);

struct EncodeError {
    std::string description; ///< one line, for the log
};

/// What `encodeState` writes: the parts of the state that are kept, as references, so that nothing is copied.
struct StateToEncode {
    const std::vector<Deck>& decks; ///< all texts valid UTF-8
    std::optional<Uuid> activeDeckId;
    std::int64_t activeCardIndex;
    double opacity;
    double fontSize;
};

/// The state as text: keys sorted, two-space indent, a blank on both sides of the colon, slashes escaped, shortest
/// numbers, no line feed at the end. Fails on a number that JSON cannot hold and on a date outside the years 0 to 9999.
/// Writes into the memory of `recycled`, whose text does not matter: a long text is then twice as fast.
[[nodiscard]] std::variant<std::string, EncodeError> encodeState(const StateToEncode& state, std::string recycled = {});

} // namespace cuebright
