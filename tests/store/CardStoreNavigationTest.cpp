#include "store/CardStoreFixture.h"

#include <algorithm>
#include <limits>

namespace cuebright::test {

namespace {

class CardStoreNavigation : public CardStoreFixture { };

constexpr auto kLowest = std::numeric_limits<std::int64_t>::min();
constexpr auto kHighest = std::numeric_limits<std::int64_t>::max();

StoreOperation switchTo(std::int64_t index)
{
    return [index](CardStore& store) { store.switchToDeck(index); };
}

TEST_F(CardStoreNavigation, MovesHaveTheirEffects)
{
    expectEffects({
        {"Talk*[a*|b|c]", &CardStore::nextCard, "Talk*[a|b*|c]", 0},
        {"Talk*[a|b|c*]", &CardStore::prevCard, "Talk*[a|b*|c]", 0},
        {"Talk*[a|b] card -2", &CardStore::nextCard, "Talk*[a|b] card -1", 0},
        {"Talk*[a|b] card -1", &CardStore::nextCard, "Talk*[a*|b]", 0},
        {"Talk*[a|b*] Demo[c|d]", switchTo(1), "Talk[a|b] Demo*[c*|d]", 1},
        {"Talk*[a|b*] Demo[c] editing 'typed '", switchTo(1), "Talk[a|typed ] Demo*[c*]", 1},
    });
    EXPECT_FALSE(store->isDeckSwitch()) << "a second later";
}

TEST_F(CardStoreNavigation, MovesAndEditsAreAnimatedUnlessMotionIsReduced)
{
    using enum Change::Property;
    const std::tuple<StoreOperation, Change::Property, std::optional<double>> cases[] = {
        {&CardStore::nextCard, ActiveCardIndex, 0.18}, {switchTo(1), DeckTransitionID, 0.14},
        {&CardStore::beginEditing, IsEditing, 0.14}, {&CardStore::moveCardDown, ActiveCardIndex, {}}};
    for (const bool motionReduced : {false, true}) {
        fake.accessibility.motionReduced = motionReduced;
        for (const auto& [operation, property, seconds] : cases) {
            open("Talk*[a*|b] Demo[c]");
            operation(*store);
            const auto change = std::ranges::find(changes, property, &Change::property);
            ASSERT_NE(change, changes.end());
            EXPECT_EQ(change->animation.has_value(), seconds && !motionReduced);
            EXPECT_EQ(
                change->animation ? change->animation->duration.count() : 0, motionReduced ? 0 : seconds.value_or(0));
        }
    }
}

TEST_F(CardStoreNavigation, TheDirectionIsThatOfTheLastMove)
{
    open("Talk*[a|b*|c]");
    store->prevCard();
    EXPECT_EQ(store->navigationDirection(), NavigationDirection::Backward);
    store->nextCard();
    EXPECT_EQ(store->navigationDirection(), NavigationDirection::Forward);
}

TEST_F(CardStoreNavigation, ImpossibleMovesDoNothing)
{
    expectNothing({
        {"Talk*[a|b*] Demo[c]", &CardStore::nextCard},
        {"Talk*[a*|b]", &CardStore::prevCard},
        {"Talk*[] card 0", &CardStore::nextCard},
        {"Talk*[a|b*|c] editing 'b'", &CardStore::nextCard},
        {"Talk*[a|b*|c] editing 'b'", &CardStore::prevCard},
        {"Talk[a] Demo*[b|c*]", switchTo(1)},
        {"Talk*[a*] Demo[b]", switchTo(2)},
        {"Talk*[a*] Demo[b]", switchTo(kLowest)},
        {"Talk*[a*] Demo[b]", switchTo(kHighest)},
    });
}

TEST_F(CardStoreNavigation, LabelsShowThePositionCountedFromOne)
{
    const struct {
        std::int64_t cardIndex;
        int cardCount;
        const char* labels;
        bool canGoNext;
        bool canGoPrev;
    } cases[] = {
        {0, 5, "CARD 01 / 05, 1 OF 5", true, false},
        {4, 5, "CARD 05 / 05, 5 OF 5", false, true},
        {11, 120, "CARD 12 / 120, 12 OF 120", true, true},
        {0, 1, "CARD 01 / 01, 1 OF 1", false, false},
        {0, 0, "CARD 0 / 0, 0 OF 0", false, false},
        {-1, 5, "CARD 00 / 05, 0 OF 5", true, false},
        {kLowest, 5, "CARD -9223372036854775807 / 05, -9223372036854775807 OF 5", true, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.labels);
        std::string cards;
        for (int i = 0; i < c.cardCount; ++i)
            cards += i == 0 ? "x" : "|x";
        open("Talk*[" + cards + "] card " + std::to_string(c.cardIndex));
        EXPECT_EQ(store->positionLabel() + ", " + store->footerLabel(), c.labels);
        EXPECT_EQ(store->canGoNext(), c.canGoNext);
        EXPECT_EQ(store->canGoPrev(), c.canGoPrev);
    }
}

} // namespace

} // namespace cuebright::test
