#include "store/CardStoreFixture.h"

#include <cstdint>
#include <limits>

namespace cuebright::test {

namespace {

    class CardStoreNavigation : public CardStoreFixture { };

    constexpr auto kLowest = std::numeric_limits<std::int64_t>::min();
    constexpr auto kHighest = std::numeric_limits<std::int64_t>::max();

    TEST_F(CardStoreNavigation, NextCardSlidesForwardToTheFollowingCard)
    {
        open("Talk*[a*|b|c]");
        store->nextCard();
        EXPECT_EQ(describe(*store), "Talk*[a|b*|c]");
        EXPECT_EQ(store->navigationDirection(), NavigationDirection::Forward);
        EXPECT_EQ(takeNotices(), "navigationDirection forward; activeCardIndex 0 ease-in-out 0.18");
    }

    TEST_F(CardStoreNavigation, PrevCardSlidesBackwardToTheCardBefore)
    {
        open("Talk*[a|b|c*]");
        store->prevCard();
        EXPECT_EQ(describe(*store), "Talk*[a|b*|c]");
        EXPECT_EQ(store->navigationDirection(), NavigationDirection::Backward);
        EXPECT_EQ(takeNotices(), "navigationDirection forward; activeCardIndex 2 ease-in-out 0.18");
    }

    TEST_F(CardStoreNavigation, WithReducedMotionPositionsChangeWithoutAnimation)
    {
        open("Talk*[a|b*] Demo[c]");
        const auto transition = store->deckTransitionId();
        surroundings.accessibility.motionReduced = true; // asked at each call, not once
        store->prevCard();
        EXPECT_EQ(takeNotices(), "navigationDirection forward; activeCardIndex 1");
        store->nextCard();
        EXPECT_EQ(takeNotices(), "navigationDirection backward; activeCardIndex 0");
        store->switchToDeck(1);
        EXPECT_EQ(takeNotices(), "activeCardIndex 1; activeDeckIndex 0; isDeckSwitch false; deckTransitionId");
        EXPECT_NE(store->deckTransitionId(), transition);
        surroundings.accessibility.motionReduced = false;
        store->switchToDeck(0);
        EXPECT_EQ(takeNotices(), "activeCardIndex 0; activeDeckIndex 1; isDeckSwitch true; deckTransitionId ease-in-out 0.14");
    }

    TEST_F(CardStoreNavigation, ImpossibleMovesChangeNothingAndTellNobody)
    {
        struct Case {
            const char* name;
            const char* decks;
            void (*move)(CardStore&);
        };
        const Case cases[] = {
            { "next at the last card", "Talk*[a|b*] Demo[c]", [](CardStore& s) { s.nextCard(); } },
            { "previous at the first card", "Talk*[a*|b] Demo[c]", [](CardStore& s) { s.prevCard(); } },
            { "next without cards", "Talk*[] Demo[c]", [](CardStore& s) { s.nextCard(); } },
            { "previous without cards", "Talk*[] Demo[c]", [](CardStore& s) { s.prevCard(); } },
            { "to the active deck", "Talk[a] Demo*[b|c*]", [](CardStore& s) { s.switchToDeck(1); } },
            { "below the first deck", "Talk*[a] Demo[b]", [](CardStore& s) { s.switchToDeck(-1); } },
            { "past the last deck", "Talk*[a] Demo[b]", [](CardStore& s) { s.switchToDeck(2); } },
            { "far below", "Talk*[a] Demo[b]", [](CardStore& s) { s.switchToDeck(kLowest); } },
            { "far past", "Talk*[a] Demo[b]", [](CardStore& s) { s.switchToDeck(kHighest); } },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.name);
            open(c.decks);
            const auto before = describe(*store);
            const auto transition = store->deckTransitionId();
            c.move(*store);
            advance(1s);
            EXPECT_EQ(describe(*store), before);
            EXPECT_EQ(store->deckTransitionId(), transition);
            EXPECT_EQ(takeNotices(), "");
            EXPECT_EQ(saves(), 0U);
        }
    }

    TEST_F(CardStoreNavigation, CardsStayWhileAnEditIsOpen)
    {
        open("Talk*[a|b*|c]");
        store->beginEditing();
        (void)takeNotices();
        store->nextCard();
        store->prevCard();
        EXPECT_EQ(describe(*store), "Talk*[a|b*|c] editing 'b'");
        EXPECT_EQ(takeNotices(), "");
    }

    TEST_F(CardStoreNavigation, APositionIsSavedOnlyWithTheNextSave)
    {
        open("Talk*[a*|b|c]");
        store->nextCard();
        store->nextCard();
        store->prevCard();
        advance(10s);
        EXPECT_EQ(saves(), 0U);
        store->flushToDisk();
        EXPECT_EQ(stateFile(), stateFileOf("Talk*[a|b*|c]"));
    }

    TEST_F(CardStoreNavigation, LabelsShowThePositionCountedFromOne)
    {
        struct Case {
            std::int64_t cardIndex;
            int cardCount;
            const char* positionLabel;
            const char* footerLabel;
            bool canGoNext;
            bool canGoPrev;
        };
        const Case cases[] = {
            { 0, 5, "CARD 01 / 05", "1 OF 5", true, false },
            { 4, 5, "CARD 05 / 05", "5 OF 5", false, true },
            { 8, 10, "CARD 09 / 10", "9 OF 10", true, true },
            { 11, 120, "CARD 12 / 120", "12 OF 120", true, true },
            { 99, 120, "CARD 100 / 120", "100 OF 120", true, true },
            { 0, 1, "CARD 01 / 01", "1 OF 1", false, false },
            { 0, 0, "CARD 0 / 0", "0 OF 0", false, false },
            { -1, 5, "CARD 00 / 05", "0 OF 5", true, false },
            { -3, 5, "CARD -2 / 05", "-2 OF 5", true, false },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.positionLabel);
            std::string cards;
            for (int i = 0; i < c.cardCount; ++i)
                cards += i == 0 ? "x" : "|x";
            open("Talk*[" + cards + "]", c.cardIndex);
            EXPECT_EQ(store->cardCount(), c.cardCount);
            EXPECT_EQ(store->positionLabel(), c.positionLabel);
            EXPECT_EQ(store->footerLabel(), c.footerLabel);
            EXPECT_EQ(store->canGoNext(), c.canGoNext);
            EXPECT_EQ(store->canGoPrev(), c.canGoPrev);
        }
    }

    TEST_F(CardStoreNavigation, NextCardClimbsFromANegativeIndexToTheFirstCard)
    {
        open("Talk*[a|b]", -2);
        EXPECT_EQ(describe(*store), "Talk*[a|b] card -2");
        store->prevCard();
        EXPECT_EQ(describe(*store), "Talk*[a|b] card -2");
        store->nextCard();
        EXPECT_EQ(describe(*store), "Talk*[a|b] card -1");
        store->nextCard();
        EXPECT_EQ(describe(*store), "Talk*[a*|b]");
    }

    TEST_F(CardStoreNavigation, SwitchToDeckOpensItsFirstCard)
    {
        open("Talk*[a|b*] Demo[c|d] Notes[e]");
        const auto transition = store->deckTransitionId();
        store->prevCard();
        (void)takeNotices();
        store->switchToDeck(1);
        EXPECT_EQ(describe(*store), "Talk[a|b] Demo*[c*|d] Notes[e]");
        EXPECT_EQ(store->deckName(), "Demo");
        EXPECT_NE(store->deckTransitionId(), transition);
        EXPECT_EQ(store->navigationDirection(), NavigationDirection::Backward); // as the last card move left it
        EXPECT_EQ(
            takeNotices(), "activeCardIndex 0; activeDeckIndex 0; isDeckSwitch false; deckTransitionId ease-in-out 0.14");
        advance(250ms);
        EXPECT_EQ(stateFile(), stateFileOf("Talk[a|b] Demo*[c*|d] Notes[e]"));
    }

    TEST_F(CardStoreNavigation, SwitchToDeckKeepsAnOpenEditWithoutTouchingItsDates)
    {
        open("Talk*[a|b*] Demo[c]");
        store->beginEditing();
        store->setEditText("typed ");
        (void)takeNotices();
        store->switchToDeck(1);
        EXPECT_EQ(describe(*store), "Talk[a|typed ] Demo*[c*]");
        EXPECT_EQ(deck(0).cards[1].updatedAt, kWritten);
        EXPECT_EQ(deck(0).updatedAt, kWritten);
        EXPECT_EQ(describe(*undoManager), "undo '' redo ''");
        EXPECT_EQ(takeNotices(),
            "decks; isEditing true; activeCardIndex 1; activeDeckIndex 0; isDeckSwitch false; "
            "deckTransitionId ease-in-out 0.14");
    }

    TEST_F(CardStoreNavigation, SwitchToDeckEndsAnEditWhoseCardHasGone)
    {
        open("Talk*[a*] Demo[c]");
        store->beginEditing();
        store->setEditText("typed");
        surroundings.fileSystem.files[std::string(kStateFile)] = stateFileOf("Talk*[a] Demo[c]", -1);
        store->loadFromDisk();
        store->switchToDeck(1);
        EXPECT_EQ(describe(*store), "Talk[a] Demo*[c*]");
    }

    TEST_F(CardStoreNavigation, ADeckSwitchIsMarkedForAMoment)
    {
        open("Talk*[a*] Demo[b]");
        store->switchToDeck(1);
        advance(159ms);
        EXPECT_TRUE(store->isDeckSwitch());
        advance(2ms);
        EXPECT_FALSE(store->isDeckSwitch());
    }

    TEST_F(CardStoreNavigation, OfSeveralDeckSwitchesTheFirstOnesTimeEndsTheMark)
    {
        open("Talk*[a*] Demo[b]");
        store->switchToDeck(1);
        advance(100ms);
        store->switchToDeck(0);
        advance(59ms);
        EXPECT_TRUE(store->isDeckSwitch());
        advance(2ms);
        EXPECT_FALSE(store->isDeckSwitch());
    }

    TEST_F(CardStoreNavigation, AMarkSetAnewIsClearedByTheResetThatStillWaits)
    {
        open("Talk*[a*] Demo[b]");
        store->switchToDeck(1);
        advance(100ms);
        store->switchToDeck(0);
        advance(70ms); // the first reset has run
        store->switchToDeck(1);
        EXPECT_TRUE(store->isDeckSwitch());
        advance(91ms); // the second one's turn
        EXPECT_FALSE(store->isDeckSwitch());
    }

} // namespace

} // namespace cuebright::test
