#include "support/LargeState.h"

#include "model/StateFile.h"

#include <algorithm>
#include <array>
#include <random>
#include <string_view>

namespace cuebright::bench {

namespace {

constexpr std::array<std::string_view, 40> kWords {"the", "audience", "slide", "demo", "pause", "**pipeline**", "and",
    "revenue", "quarter", "—", "→", "*really*", "customers", "it’s", "we", "ship", "next", "`state.json`", "roadmap",
    "team", "“why now?”", "\"quoted\"", "and/or", "growth", "70%", "before", "questions", "café", "show", "dashboard",
    "workflow", "to", "of", "a", "in", "integration", "https://example.org/docs", "pilot", "with", "numbers"};

constexpr std::array<std::string_view, 10> kLineStarts {
    "\n- ", "\n- ", "\n- ", "\n- ", "\n- ", "\n- ", "\n1. ", "\n> ", "\n\n", "\n"};

class TextMaker final {
public:
    std::string cardText()
    {
        std::string text = "# ";
        text.append(line(40)).append("\n");
        const auto length = 100 + pick(360);
        while (text.size() < length)
            text.append(kLineStarts[pick(kLineStarts.size())]).append(line(30 + pick(90)));
        return text;
    }

    Uuid uuid()
    {
        Uuid result;
        std::generate(
            result.bytes.begin(), result.bytes.end(), [this] { return static_cast<std::uint8_t>(pick(256)); });
        return result;
    }

    Instant instant() { return Instant(std::chrono::seconds(1'700'000'000 + pick(90'000'000))); }

private:
    std::string line(std::size_t length)
    {
        std::string text(kWords[pick(kWords.size())]);
        while (text.size() < length)
            text.append(" ").append(kWords[pick(kWords.size())]);
        return text;
    }

    /// The standard's distributions differ between libraries; the generator itself does not.
    std::size_t pick(std::size_t count) { return m_random() % count; }

    std::mt19937 m_random {1};
};

} // namespace

AppState largeState()
{
    TextMaker make;
    AppState state;
    for (std::size_t d = 0; d < kDeckCount; ++d) {
        Deck deck {make.uuid(), "Deck " + std::to_string(d + 1), {}, make.instant(), make.instant()};
        for (std::size_t c = 0; c < kCardsPerDeck; ++c)
            deck.cards.push_back({make.uuid(), make.cardText(), make.instant(), make.instant()});
        state.decks.push_back(std::move(deck));
    }
    state.activeDeckId = state.decks.front().id;
    return state;
}

std::string encoded(const AppState& state)
{
    const auto result = encodeState({.decks = state.decks,
        .activeDeckId = state.activeDeckId,
        .activeCardIndex = state.activeCardIndex,
        .opacity = state.opacity,
        .fontSize = state.fontSize});
    auto json = std::get<std::string>(result);
    json.reserve(json.size() + kDecodePadding);
    return json;
}

} // namespace cuebright::bench
