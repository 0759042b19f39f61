#include "model/StateFile.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <limits>

namespace cuebright {

namespace {

const auto kDate = parseIso8601("2026-11-16T01:21:19Z").value();
const auto kDeckId = Uuid::parse("6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4B21").value();
const auto kCardId = Uuid::parse("0C8E6A52-9B1F-4C7D-8E2A-5D3B7F1A6C90").value();

Deck deckWith(std::vector<Card> cards) { return {kDeckId, "Getting Started", std::move(cards), kDate, kDate}; }
Card cardWith(std::string content) { return {kCardId, std::move(content), kDate, kDate}; }

std::variant<std::string, EncodeError> encoded(const std::vector<Deck>& decks, double opacity = 1, double fontSize = 17)
{
    return encodeState(
        {.decks = decks, .activeDeckId = kDeckId, .activeCardIndex = 1, .opacity = opacity, .fontSize = fontSize});
}

std::string text(const std::variant<std::string, EncodeError>& result)
{
    const auto error = std::get_if<EncodeError>(&result);
    return error ? "error: " + error->description : std::get<std::string>(result);
}

/// The card's text as written, with quotes.
std::string writtenContent(const std::string& content)
{
    const auto json = text(encoded({deckWith({cardWith(content)})}));
    const std::string before = "\"content\" : ";
    const auto start = json.find(before) + before.size();
    return json.substr(start, json.find(",\n          \"createdAt\"") - start);
}

} // namespace

TEST(StateFileWriter, TheLayoutIsExactAndReadMemberByMember)
{
    const std::string json = R"({
  "activeCardIndex" : 1,
  "activeDeckId" : "6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4B21",
  "decks" : [
    {
      "cards" : [
        {
          "content" : "# Navigating your cards\n\n- Press the **← → arrow keys** to move between cards.",
          "createdAt" : "2026-11-16T01:21:19Z",
          "id" : "0C8E6A52-9B1F-4C7D-8E2A-5D3B7F1A6C90",
          "updatedAt" : "2026-11-17T01:21:19Z"
        }
      ],
      "createdAt" : "2026-11-15T01:21:19Z",
      "id" : "6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4B21",
      "name" : "Getting Started",
      "updatedAt" : "2026-11-18T01:21:19Z"
    },
    {
      "cards" : [

      ],
      "createdAt" : "2026-11-15T01:21:19Z",
      "id" : "6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4B22",
      "name" : "Empty",
      "updatedAt" : "2026-11-15T01:21:19Z"
    }
  ],
  "fontSize" : 20.5,
  "opacity" : 0.85
})";
    const auto state = decodeState(json);
    ASSERT_TRUE(state);
    EXPECT_EQ(
        text(encodeState({state->decks, state->activeDeckId, state->activeCardIndex, state->opacity, state->fontSize})),
        json);
    EXPECT_EQ(iso8601(state->decks[0].createdAt), "2026-11-15T01:21:19Z");
    EXPECT_EQ(iso8601(state->decks[0].cards[0].createdAt), "2026-11-16T01:21:19Z");
    EXPECT_EQ(text(encodeState({{}, {}, 0, 1, 17})),
        "{\n  \"activeCardIndex\" : 0,\n  \"decks\" : [\n\n  ],\n  \"fontSize\" : 17,\n  \"opacity\" : 1\n}");
}

TEST(StateFileWriter, WhatIsWrittenIsReadAgain)
{
    using Limits = std::numeric_limits<double>;
    using Index = std::numeric_limits<std::int64_t>;
    test::FakeUuidSource uuids;
    auto state = AppState::makeDefault(kDate + std::chrono::milliseconds(999), uuids);
    const auto read = [&] {
        return decodeState(
            text(encodeState({state.decks, state.activeDeckId, state.activeCardIndex, state.opacity, state.fontSize})))
            .value();
    };
    EXPECT_EQ(read().decks[0].cards[0].updatedAt, kDate) << "dates are cut to seconds";
    for (const double value : {0.1, 1.0 / 3, Limits::max(), Limits::lowest(), Limits::denorm_min()})
        EXPECT_EQ((state.opacity = value, read().opacity), value);
    for (const auto index : {Index::min(), Index::max()})
        EXPECT_EQ((state.activeCardIndex = index, read().activeCardIndex), index);
    for (const auto date : {"0000-01-01T00:00:00Z", "1969-12-31T23:59:59Z", "9999-12-31T23:59:59Z"}) {
        state.decks[0].createdAt = parseIso8601(date).value();
        EXPECT_EQ(read().decks[0].createdAt, state.decks[0].createdAt);
    }
    state.activeDeckId.reset();
    state.decks = {deckWith({})};
    EXPECT_TRUE(read().decks.at(0).cards.empty());
}

TEST(StateFileWriter, OnlyWhatMustBeAndTheSlashIsEscaped)
{
    const std::pair<std::string, std::string> cases[] = {
        {"", R"("")"},
        {"\"a\\b\"", R"("\"a\\b\"")"},
        {"https://a/b", R"("https:\/\/a\/b")"},
        {"\b\f\n\r\t", R"("\b\f\n\r\t")"},
        {std::string("\0\x01\x0b\x1f", 4), R"("\u0000\u0001\u000b\u001f")"},
        {"\x7fé → — 😀 \u00a0\u2028\ufeff", "\"\x7fé → — 😀 \u00a0\u2028\ufeff\""},
    };
    for (const auto& [content, expected] : cases)
        EXPECT_EQ(writtenContent(content), expected);
}

TEST(StateFileWriter, NumbersTakeTheirShortestForm)
{
    const std::pair<double, std::string> cases[] = {
        {17, "17"}, {0.85, "0.85"}, {0.1 + 0.2, "0.30000000000000004"}, {-0.5, "-0.5"}, {1e300, "1e+300"}};
    for (const auto& [value, expected] : cases)
        EXPECT_TRUE(text(encoded({}, value)).ends_with("\"opacity\" : " + expected + "\n}")) << expected;
}

TEST(StateFileWriter, NumbersThatJsonCannotHoldAreAnError)
{
    using Limits = std::numeric_limits<double>;
    for (const double value : {Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()}) {
        EXPECT_TRUE(std::holds_alternative<EncodeError>(encoded({}, value)));
        EXPECT_TRUE(std::holds_alternative<EncodeError>(encoded({}, 1, value)));
    }
}

TEST(StateFileWriter, DatesOutsideFourDigitYearsAreAnError)
{
    for (const auto date : {Instant::max(), Instant::min()}) {
        auto card = cardWith("a");
        card.updatedAt = date;
        EXPECT_TRUE(std::holds_alternative<EncodeError>(encoded({deckWith({card, cardWith("b")})})));
        auto deck = deckWith({});
        deck.createdAt = date;
        EXPECT_TRUE(std::holds_alternative<EncodeError>(encoded({deck, deckWith({})})));
    }
}

} // namespace cuebright
