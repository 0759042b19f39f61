#include "markdown/CardParser.h"
#include "model/AppState.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace cuebright {

namespace {

const Instant kNow = Instant(std::chrono::hours(500'000));

struct SampleDecks : testing::Test {
    test::FakeUuidSource uuids;
    AppState state = AppState::makeDefault(kNow, uuids);
    const std::vector<Deck>& decks = state.decks;
};

} // namespace

TEST_F(SampleDecks, AreThreeOfWhichTheFirstIsShownAtItsFirstCard)
{
    std::string names;
    for (const auto& deck : decks)
        names += deck.name + ": " + std::to_string(deck.cards.size()) + ". ";
    EXPECT_EQ(names, "Getting Started: 5. Product Demo: 4. Q4 Board Update: 2. ");
    EXPECT_TRUE(decks[0].cards[0].content.starts_with("# Cue cards your audience can’t see.\n\n- "));
    EXPECT_EQ(state.activeDeckId, decks[0].id);
    EXPECT_EQ(state.activeCardIndex, 0);
}

TEST_F(SampleDecks, EveryDateIsTheGivenOneAndNoTwoIdentifiersAreTheSameNotEvenOfTwoCalls)
{
    std::set<Uuid> ids;
    const auto check = [&](const auto& item) {
        EXPECT_TRUE(ids.insert(item.id).second);
        EXPECT_EQ(item.createdAt, kNow);
        EXPECT_EQ(item.updatedAt, kNow);
    };
    for (const auto& list : {decks, AppState::sampleDecks(kNow, uuids)}) {
        for (const auto& deck : list) {
            check(deck);
            std::ranges::for_each(deck.cards, check);
        }
    }
}

} // namespace cuebright
