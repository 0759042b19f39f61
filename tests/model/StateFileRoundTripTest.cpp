#include "model/StateFile.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <limits>

namespace cuebright {

namespace {

std::string encoded(const AppState& state)
{
    return std::get<std::string>(
        encodeState({state.decks, state.activeDeckId, state.activeCardIndex, state.opacity, state.fontSize}));
}

/// What is read from the text is written as the same text.
void expectComesBack(const AppState& state)
{
    const auto json = encoded(state);
    const auto read = decodeState(json);
    ASSERT_TRUE(read) << json;
    EXPECT_EQ(encoded(*read), json);
}

struct StateFileRoundTrip : testing::Test {
    test::FakeClock clock;
    test::FakeUuidSource uuids;
    AppState state = AppState::makeDefault(clock.now() + std::chrono::milliseconds(999), uuids);
};

} // namespace

TEST_F(StateFileRoundTrip, TheDefaultStateComesBackWithDatesCutToSecondsAndEmptyToo)
{
    expectComesBack(state);
    EXPECT_EQ(decodeState(encoded(state))->decks[0].cards[0].updatedAt, clock.now());
    state.decks[0].cards.clear();
    state.activeDeckId.reset();
    expectComesBack(state);
    state.decks.clear();
    expectComesBack(state);
}

TEST_F(StateFileRoundTrip, ExtremeNumbersAndDatesComeBack)
{
    using Limits = std::numeric_limits<double>;
    for (const double value : {0.1, 1.0 / 3, Limits::max(), Limits::lowest(), Limits::min(), Limits::denorm_min()}) {
        state.opacity = value;
        state.fontSize = -value;
        expectComesBack(state);
        EXPECT_EQ(decodeState(encoded(state))->opacity, value);
    }
    for (const auto index : {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()}) {
        state.activeCardIndex = index;
        expectComesBack(state);
    }
    for (const auto date : {"0000-01-01T00:00:00Z", "1969-12-31T23:59:59Z", "9999-12-31T23:59:59Z"}) {
        state.decks[0].cards[0].createdAt = parseIso8601(date).value();
        expectComesBack(state);
    }
}

} // namespace cuebright
