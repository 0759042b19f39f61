#pragma once

#include "model/AppState.h"

#include <cstddef>

namespace cuebright::bench {

inline constexpr std::size_t kDeckCount = 100;
inline constexpr std::size_t kCardsPerDeck = 1000;

/// 100 decks of 1,000 cards of talk-like Markdown, about 500 bytes a card, 50 MB as a file. The same at every call.
[[nodiscard]] AppState largeState();

/// The state as JSON, with the spare capacity for reading.
[[nodiscard]] std::string encoded(const AppState& state);

} // namespace cuebright::bench
