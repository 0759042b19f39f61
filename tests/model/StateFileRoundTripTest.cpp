#include "model/StateFile.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <limits>

namespace cuebright {

namespace {

std::optional<AppState> writtenAndRead(const AppState& state)
{
    const auto json = encodeState({.decks = state.decks,
        .activeDeckId = state.activeDeckId,
        .activeCardIndex = state.activeCardIndex,
        .opacity = state.opacity,
        .fontSize = state.fontSize});
    return decodeState(std::get<std::string>(json));
}

struct StateFileRoundTrip : testing::Test {
    test::FakeClock clock;
    test::FakeUuidSource uuids;
    AppState state = AppState::makeDefault(clock.now() + std::chrono::milliseconds(999), uuids);
};

} // namespace

TEST_F(StateFileRoundTrip, TheDefaultStateComesBackWithDatesCutToSeconds)
{
    const auto read = writtenAndRead(state);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->activeDeckId, state.activeDeckId);
    EXPECT_EQ(read->opacity, 1.0);
    EXPECT_EQ(read->fontSize, 17.0);
    ASSERT_EQ(read->decks.size(), state.decks.size());
    for (std::size_t d = 0; d < state.decks.size(); ++d) {
        EXPECT_EQ(read->decks[d].id, state.decks[d].id);
        EXPECT_EQ(read->decks[d].name, state.decks[d].name);
        EXPECT_EQ(read->decks[d].createdAt, clock.now());
        ASSERT_EQ(read->decks[d].cards.size(), state.decks[d].cards.size());
        for (std::size_t c = 0; c < state.decks[d].cards.size(); ++c) {
            EXPECT_EQ(read->decks[d].cards[c].id, state.decks[d].cards[c].id);
            EXPECT_EQ(read->decks[d].cards[c].content, state.decks[d].cards[c].content);
            EXPECT_EQ(read->decks[d].cards[c].updatedAt, clock.now());
        }
    }
}

TEST_F(StateFileRoundTrip, EveryTextComesBackAsItWas)
{
    std::string controls;
    for (char c = 0; c < 0x20; ++c)
        controls += c;
    const std::string texts[] = {
        "",
        " leading and trailing blanks \n",
        controls,
        "\"quotes\" \\ back/slash\\\\",
        "\\n \\u0041 \\",
        "\x7f",
        "👩‍👩‍👧 🇩🇪 \U0010ffff",
        "שלום عربى \u202eabc",
        "a\u00a0b\u2028c\u2029d\ufeff",
        "a\r\nb\rc",
        "e\u0301 is not \u00e9",
        std::string(70'000, '/'),
    };
    for (const auto& text : texts) {
        state.decks[0].name = text;
        state.decks[0].cards[0].content = text;
        const auto read = writtenAndRead(state);
        ASSERT_TRUE(read) << text;
        EXPECT_EQ(read->decks[0].name, text);
        EXPECT_EQ(read->decks[0].cards[0].content, text);
    }
}

TEST_F(StateFileRoundTrip, EmptyListsAndAnAbsentDeckComeBack)
{
    state.decks.resize(1);
    state.decks[0].cards.clear();
    state.activeDeckId.reset();
    const auto withoutCards = writtenAndRead(state);
    ASSERT_TRUE(withoutCards);
    EXPECT_FALSE(withoutCards->activeDeckId);
    ASSERT_EQ(withoutCards->decks.size(), 1U);
    EXPECT_TRUE(withoutCards->decks[0].cards.empty());

    state.decks.clear();
    const auto withoutDecks = writtenAndRead(state);
    ASSERT_TRUE(withoutDecks);
    EXPECT_TRUE(withoutDecks->decks.empty());
}

TEST_F(StateFileRoundTrip, ExtremeNumbersComeBack)
{
    using Limits = std::numeric_limits<double>;
    for (const double value : {0.1, 1.0 / 3, Limits::max(), Limits::lowest(), Limits::min(), Limits::denorm_min()}) {
        state.opacity = value;
        state.fontSize = -value;
        const auto read = writtenAndRead(state);
        ASSERT_TRUE(read) << value;
        EXPECT_EQ(read->opacity, value);
        EXPECT_EQ(read->fontSize, -value);
    }
    for (const auto index : {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()}) {
        state.activeCardIndex = index;
        const auto read = writtenAndRead(state);
        ASSERT_TRUE(read) << index;
        EXPECT_EQ(read->activeCardIndex, index);
    }
}

TEST_F(StateFileRoundTrip, EveryDateOfFourDigitYearsComesBack)
{
    for (const auto date : {"0000-01-01T00:00:00Z", "1969-12-31T23:59:59Z", "9999-12-31T23:59:59Z"}) {
        state.decks[0].cards[0].createdAt = parseIso8601(date).value();
        const auto read = writtenAndRead(state);
        ASSERT_TRUE(read) << date;
        EXPECT_EQ(read->decks[0].cards[0].createdAt, state.decks[0].cards[0].createdAt);
    }
}

} // namespace cuebright
