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
    std::vector<Deck> decks = AppState::sampleDecks(kNow, uuids);
};

} // namespace

TEST_F(SampleDecks, ThereAreThreeOfThemInOrder)
{
    ASSERT_EQ(decks.size(), 3U);
    EXPECT_EQ(decks[0].name, "Getting Started");
    EXPECT_EQ(decks[0].cards.size(), 5U);
    EXPECT_EQ(decks[1].name, "Product Demo");
    EXPECT_EQ(decks[1].cards.size(), 4U);
    EXPECT_EQ(decks[2].name, "Q4 Board Update");
    EXPECT_EQ(decks[2].cards.size(), 2U);
    EXPECT_TRUE(decks[0].cards[0].content.starts_with("# Cue cards your audience can’t see.\n\n- "));
}

TEST_F(SampleDecks, EveryCardIsOneHeadingFollowedByBullets)
{
    const auto isBullet = [](const Block& block) { return block.kind == Block::Kind::Bullet; };
    for (const auto& deck : decks) {
        for (const auto& card : deck.cards) {
            const auto blocks = parseMarkdown(card.content);
            ASSERT_GE(blocks.size(), 2U) << card.content;
            EXPECT_EQ(blocks.front().kind, Block::Kind::Heading) << card.content;
            EXPECT_TRUE(std::all_of(blocks.begin() + 1, blocks.end(), isBullet)) << card.content;
            EXPECT_FALSE(card.content.ends_with('\n')) << card.content;
        }
    }
}

TEST_F(SampleDecks, EveryDateIsTheGivenOne)
{
    for (const auto& deck : decks) {
        EXPECT_EQ(deck.createdAt, kNow);
        EXPECT_EQ(deck.updatedAt, kNow);
        for (const auto& card : deck.cards) {
            EXPECT_EQ(card.createdAt, kNow);
            EXPECT_EQ(card.updatedAt, kNow);
        }
    }
}

TEST_F(SampleDecks, NoTwoIdentifiersAreTheSameNotEvenOfTwoCalls)
{
    std::multiset<Uuid> ids;
    for (const auto& list : {decks, AppState::sampleDecks(kNow, uuids)}) {
        for (const auto& deck : list) {
            ids.insert(deck.id);
            for (const auto& card : deck.cards)
                ids.insert(card.id);
        }
    }
    EXPECT_EQ(ids.size(), 28U);
    EXPECT_EQ(std::set<Uuid>(ids.begin(), ids.end()).size(), ids.size());
}

TEST_F(SampleDecks, TheFirstStartShowsTheFirstCardOfTheFirstDeck)
{
    const auto state = AppState::makeDefault(kNow, uuids);
    ASSERT_EQ(state.decks.size(), 3U);
    EXPECT_EQ(state.activeDeckId, state.decks.front().id);
    EXPECT_EQ(state.activeCardIndex, 0);
    EXPECT_EQ(state.decks.front().createdAt, kNow);
    EXPECT_FALSE(state.windowFrame);
    EXPECT_EQ(state.opacity, 1.0);
    EXPECT_EQ(state.fontSize, 17.0);
}

} // namespace cuebright
