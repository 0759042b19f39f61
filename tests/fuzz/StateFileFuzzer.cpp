#include "Require.h"
#include "model/StateFile.h"

#include <algorithm>

namespace {

using namespace cuebright;
using fuzz::require;

bool isSameCard(const Card& a, const Card& b)
{
    return a.id == b.id && a.content == b.content && a.createdAt == b.createdAt && a.updatedAt == b.updatedAt;
}

bool isSameDeck(const Deck& a, const Deck& b)
{
    return a.id == b.id && a.name == b.name && a.createdAt == b.createdAt && a.updatedAt == b.updatedAt
        && std::equal(a.cards.begin(), a.cards.end(), b.cards.begin(), b.cards.end(), isSameCard);
}

bool isSameState(const AppState& a, const AppState& b)
{
    return a.activeDeckId == b.activeDeckId && a.activeCardIndex == b.activeCardIndex && a.opacity == b.opacity
        && a.fontSize == b.fontSize
        && std::equal(a.decks.begin(), a.decks.end(), b.decks.begin(), b.decks.end(), isSameDeck);
}

std::string encoded(const AppState& state)
{
    auto result = encodeState({.decks = state.decks,
        .activeDeckId = state.activeDeckId,
        .activeCardIndex = state.activeCardIndex,
        .opacity = state.opacity,
        .fontSize = state.fontSize});
    require(std::holds_alternative<std::string>(result), "what was read can be written");
    return std::get<std::string>(std::move(result));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string json(reinterpret_cast<const char*>(data), size);
    const auto state = decodeState(json);
    if (!state)
        return 0;
    const auto written = encoded(*state);
    const auto readAgain = decodeState(written);
    require(readAgain.has_value(), "what was written can be read");
    require(isSameState(*state, *readAgain), "reading gives back what was written");
    require(encoded(*readAgain) == written, "writing the same state gives the same text");
    return 0;
}
