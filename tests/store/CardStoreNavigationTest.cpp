#include "store/CardStoreFixture.h"

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

TEST_F(CardStoreNavigation, MovesTellTheirEffectsInOrder)
{
    const std::string slide = "navigationDirection forward; activeCardIndex ";
    expectEffects({
        {"Talk*[a*|b|c]", &CardStore::nextCard, "Talk*[a|b*|c]", slide + "0 ease-in-out 0.18", 0},
        {"Talk*[a|b|c*]", &CardStore::prevCard, "Talk*[a|b*|c]", slide + "2 ease-in-out 0.18", 0},
        {"Talk*[a|b] card -2", &CardStore::nextCard, "Talk*[a|b] card -1", slide + "-2 ease-in-out 0.18", 0},
        {"Talk*[a|b] card -1", &CardStore::nextCard, "Talk*[a*|b]", slide + "-1 ease-in-out 0.18", 0},
        {"Talk*[a|b*] Demo[c|d]", switchTo(1), "Talk[a|b] Demo*[c*|d]",
            "activeCardIndex 1; activeDeckIndex 0; isDeckSwitch false; deckTransitionID ease-in-out 0.14", 1},
        {"Talk*[a|b*] Demo[c] editing 'typed '", switchTo(1), "Talk[a|typed ] Demo*[c*]",
            "decks; isEditing true; activeCardIndex 1; activeDeckIndex 0; isDeckSwitch false; "
            "deckTransitionID ease-in-out 0.14",
            1},
        {"Talk*[a] Demo[c] card -1 editing 'typed'", switchTo(1), "Talk[a] Demo*[c*]",
            "isEditing true; activeCardIndex -1; activeDeckIndex 0; isDeckSwitch false; "
            "deckTransitionID ease-in-out 0.14",
            1},
    });
}

TEST_F(CardStoreNavigation, ImpossibleMovesDoNothing)
{
    expectNothing({
        {"Talk*[a|b*] Demo[c]", &CardStore::nextCard},
        {"Talk*[a*|b]", &CardStore::prevCard},
        {"Talk*[] card 0", &CardStore::nextCard},
        {"Talk*[] card 0", &CardStore::prevCard},
        {"Talk*[a|b] card -2", &CardStore::prevCard},
        {"Talk*[a|b*|c] editing 'b'", &CardStore::nextCard},
        {"Talk*[a|b*|c] editing 'b'", &CardStore::prevCard},
        {"Talk[a] Demo*[b|c*]", switchTo(1)},
        {"Talk*[a*] Demo[b]", switchTo(-1)},
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
        {8, 10, "CARD 09 / 10, 9 OF 10", true, true},
        {11, 120, "CARD 12 / 120, 12 OF 120", true, true},
        {0, 1, "CARD 01 / 01, 1 OF 1", false, false},
        {0, 0, "CARD 0 / 0, 0 OF 0", false, false},
        {-1, 5, "CARD 00 / 05, 0 OF 5", true, false},
        {-3, 5, "CARD -2 / 05, -2 OF 5", true, false},
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
