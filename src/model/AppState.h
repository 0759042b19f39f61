#pragma once

#include "model/Deck.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace cuebright {

class UuidSource;

/// A rectangle in screen points.
struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Rect&) const = default;
};

/// Everything that the state file holds, as one value.
struct AppState {
    std::vector<Deck> decks;
    std::optional<Uuid> activeDeckId;
    std::int64_t activeCardIndex = 0; ///< as stored: may be negative or too large
    std::optional<Rect> windowFrame; ///< read, never used, never written
    double opacity = 1.0; ///< read, never used
    double fontSize = 17.0; ///< read, never used

    /// The state of a first start: the sample decks, the first one active at its first card.
    [[nodiscard]] static AppState makeDefault(Instant now, UuidSource& uuids);

    /// Three decks that introduce the program, with new identifiers; all dates are `now`.
    [[nodiscard]] static std::vector<Deck> sampleDecks(Instant now, UuidSource& uuids);
};

} // namespace cuebright
