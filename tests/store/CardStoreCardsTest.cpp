#include "store/CardStoreFixture.h"

namespace cuebright::test {

namespace {

    class CardStoreCards : public CardStoreFixture { };

    TEST_F(CardStoreCards, AddCardAppendsACardAndOpensIt)
    {
        open("Talk*[a*|b]");
        store->addCard();
        EXPECT_EQ(describe(*store),
            "Talk*[a|b|# New Card\n\nStart writing here.*] editing '# New Card\n\nStart writing here.' "
            "feedback 'Card added'");
        EXPECT_EQ(takeNotices(),
            "decks; navigationDirection forward; activeCardIndex 0; editText ''; isEditing false ease-in-out 0.14; "
            "feedbackMessage none");
        EXPECT_EQ(describe(*undoManager), "undo 'Add Card' redo ''");
    }

    TEST_F(CardStoreCards, AddCardSlidesForwardWhateverCameBefore)
    {
        open("Talk*[a|b*]");
        store->prevCard();
        store->addCard();
        EXPECT_EQ(store->navigationDirection(), NavigationDirection::Forward);
    }

    TEST_F(CardStoreCards, AddCardGivesTheCardOneDateAndAFreshIdentifier)
    {
        open("Talk*[a*]");
        surroundings.clock.stepPerRead = 1s;
        const auto now = surroundings.clock.wallClock;
        const auto made = surroundings.uuids.count;
        store->addCard();
        EXPECT_EQ(card(1).createdAt, now);
        EXPECT_EQ(card(1).updatedAt, now);
        EXPECT_EQ(card(1).id, FakeUuidSource::nth(made + 1));
        EXPECT_EQ(deck(0).updatedAt, now + 1s);
        EXPECT_EQ(deck(0).createdAt, kWritten);
    }

    TEST_F(CardStoreCards, AddCardSavesAnOpenEditFirst)
    {
        open("Talk*[a*|b]");
        store->beginEditing();
        store->setEditText("typed");
        (void)takeNotices();
        const auto now = surroundings.clock.wallClock;
        store->addCard();
        EXPECT_EQ(describe(*store),
            "Talk*[typed|b|# New Card\n\nStart writing here.*] editing '# New Card\n\nStart writing here.' "
            "feedback 'Card added'");
        EXPECT_EQ(card(0).updatedAt, now);
        EXPECT_EQ(takeNotices(),
            "decks; isEditing true ease-in-out 0.14; feedbackMessage none; "
            "decks; navigationDirection forward; activeCardIndex 0; editText 'typed'; isEditing false ease-in-out 0.14; "
            "feedbackMessage 'Saved'");
    }

    TEST_F(CardStoreCards, DeleteCardLeavesTheCardThatFollowsOrTheNewLastOne)
    {
        struct Case {
            const char* before;
            const char* after;
        };
        const Case cases[] = {
            { "Talk*[a*|b|c]", "Talk*[b*|c] feedback 'Deleted — ⌘Z to undo'" },
            { "Talk*[a|b*|c]", "Talk*[a|c*] feedback 'Deleted — ⌘Z to undo'" },
            { "Talk*[a|b|c*]", "Talk*[a|b*] feedback 'Deleted — ⌘Z to undo'" },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.before);
            open(c.before);
            store->deleteCard();
            EXPECT_EQ(describe(*store), c.after);
            EXPECT_EQ(deck(0).updatedAt, surroundings.clock.wallClock);
            EXPECT_EQ(describe(*undoManager), "undo 'Delete Card' redo ''");
        }
    }

    TEST_F(CardStoreCards, DeleteCardKeepsTheDirectionOfTheLastMove)
    {
        open("Talk*[a|b|c*]");
        store->prevCard();
        (void)takeNotices();
        store->deleteCard();
        EXPECT_EQ(store->navigationDirection(), NavigationDirection::Backward);
        EXPECT_EQ(takeNotices(), "decks; activeCardIndex 1; feedbackMessage none");
    }

    TEST_F(CardStoreCards, DeleteCardThrowsAnOpenEditAway)
    {
        open("Talk*[a|b*]");
        store->beginEditing();
        store->setEditText("typed");
        (void)takeNotices();
        store->deleteCard();
        EXPECT_EQ(describe(*store), "Talk*[a*] feedback 'Deleted — ⌘Z to undo'");
        EXPECT_EQ(takeNotices(),
            "editText 'typed'; isEditing true ease-in-out 0.14; feedbackMessage none; "
            "decks; activeCardIndex 1; feedbackMessage 'Discarded'");
        undoManager->undo();
        EXPECT_EQ(card(1).content, "b");
    }

    TEST_F(CardStoreCards, MovesTakeTheActiveCardAlong)
    {
        open("Talk*[a|b*|c]");
        store->moveCardDown();
        EXPECT_EQ(describe(*store), "Talk*[a|c|b*]");
        EXPECT_EQ(describe(*undoManager), "undo 'Move Card Down' redo ''");
        EXPECT_EQ(takeNotices(), "decks; activeCardIndex 1");
        store->moveCardUp();
        store->moveCardUp();
        EXPECT_EQ(describe(*store), "Talk*[b*|a|c]");
        EXPECT_EQ(describe(*undoManager), "undo 'Move Card Up' redo ''");
        EXPECT_EQ(deck(0).updatedAt, surroundings.clock.wallClock);
        EXPECT_EQ(card(0).updatedAt, kWritten);
    }

    TEST_F(CardStoreCards, MovesKeepTheDirectionOfTheLastCardMove)
    {
        open("Talk*[a|b*|c]");
        store->prevCard();
        store->moveCardDown();
        EXPECT_EQ(store->navigationDirection(), NavigationDirection::Backward);
    }

    TEST_F(CardStoreCards, ImpossibleOperationsLeaveNoTrace)
    {
        struct Case {
            const char* name;
            const char* decks;
            std::optional<std::int64_t> storedCardIndex;
            bool editing;
            void (*operation)(CardStore&);
        };
        const auto remove = [](CardStore& s) { s.deleteCard(); };
        const auto moveUp = [](CardStore& s) { s.moveCardUp(); };
        const auto moveDown = [](CardStore& s) { s.moveCardDown(); };
        const Case cases[] = {
            { "delete the only card", "Talk*[a*]", {}, false, remove },
            { "delete the only card while editing", "Talk*[a*]", {}, true, remove },
            { "delete without cards", "Talk*[]", {}, false, remove },
            { "delete at a negative index", "Talk*[a|b]", -1, false, remove },
            { "move up at the first card", "Talk*[a*|b]", {}, false, moveUp },
            { "move up while editing", "Talk*[a|b*]", {}, true, moveUp },
            { "move up at a negative index", "Talk*[a|b]", -1, false, moveUp },
            { "move up without cards", "Talk*[]", {}, false, moveUp },
            { "move down at the last card", "Talk*[a|b*]", {}, false, moveDown },
            { "move down while editing", "Talk*[a*|b]", {}, true, moveDown },
            { "move down just below the first card", "Talk*[a|b]", -1, false, moveDown },
            { "move down at a negative index", "Talk*[a|b]", -5, false, moveDown },
            { "move down without cards", "Talk*[]", {}, false, moveDown },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.name);
            open(c.decks, c.storedCardIndex);
            if (c.editing) {
                store->beginEditing();
                store->setEditText("typed");
            }
            (void)takeNotices();
            const auto before = describe(*store);
            c.operation(*store);
            advance(1s);
            EXPECT_EQ(describe(*store), before);
            EXPECT_EQ(takeNotices(), "");
            EXPECT_EQ(describe(*undoManager), "undo '' redo ''");
            EXPECT_EQ(saves(), 0U);
        }
    }

    TEST_F(CardStoreCards, EveryPairOfUndoAndRedoAlternates)
    {
        struct Case {
            const char* name;
            const char* before;
            void (*operation)(CardStore&);
            const char* after;
            const char* undone;
        };
        const auto add = [](CardStore& s) {
            s.addCard();
            s.cancelEdit();
        };
        const Case cases[] = {
            { "Add Card", "Talk*[a*|b]", add, "Talk*[a|b|# New Card\n\nStart writing here.*]", "Talk*[a|b*]" },
            { "Delete Card", "Talk*[a|b*|c]", [](CardStore& s) { s.deleteCard(); }, "Talk*[a|c*]", "Talk*[a|b*|c]" },
            { "Move Card Up", "Talk*[a|b|c*]", [](CardStore& s) { s.moveCardUp(); }, "Talk*[a|c*|b]", "Talk*[a|b|c*]" },
            { "Move Card Down", "Talk*[a*|b|c]", [](CardStore& s) { s.moveCardDown(); }, "Talk*[b|a*|c]",
                "Talk*[a*|b|c]" },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.name);
            open(c.before);
            c.operation(*store);
            advance(3s);
            for (std::size_t round = 1; round <= 3; ++round) {
                SCOPED_TRACE(round);
                EXPECT_EQ(describe(*store), c.after);
                EXPECT_EQ(describe(*undoManager), "undo '" + std::string(c.name) + "' redo ''");
                undoManager->undo();
                EXPECT_EQ(describe(*store), c.undone); // no feedback either
                EXPECT_EQ(describe(*undoManager), "undo '' redo '" + std::string(c.name) + "'");
                advance(250ms);
                EXPECT_EQ(saves(), 2 * round);
                undoManager->redo();
                advance(250ms);
                EXPECT_EQ(saves(), 2 * round + 1);
            }
        }
    }

    TEST_F(CardStoreCards, UndoOfADeletionBringsTheSameCardBack)
    {
        open("Talk*[a|b*|c]");
        store->deleteCard();
        store->prevCard();
        undoManager->undo();
        EXPECT_EQ(card(1).id, FakeUuidSource::nth(102));
        EXPECT_EQ(card(1).createdAt, kWritten);
        EXPECT_EQ(card(1).updatedAt, kWritten);
        EXPECT_EQ(deck(0).updatedAt, surroundings.clock.wallClock);
        EXPECT_EQ(store->navigationDirection(), NavigationDirection::Forward);
    }

    TEST_F(CardStoreCards, UndoOfAddCardMayEmptyADeck)
    {
        open("Talk*[]");
        store->addCard();
        store->cancelEdit();
        advance(3s);
        undoManager->undo();
        EXPECT_EQ(describe(*store), "Talk*[] card 0");
        undoManager->redo();
        EXPECT_EQ(describe(*store), "Talk*[# New Card\n\nStart writing here.*]");
    }

    TEST_F(CardStoreCards, UndoActsOnTheDeckThatIsActiveThen)
    {
        open("Talk*[a|b*] Demo[c|d|e]");
        store->deleteCard();
        store->switchToDeck(1);
        advance(3s);
        undoManager->undo();
        EXPECT_EQ(describe(*store), "Talk[a] Demo*[c|b*|d|e]");
        undoManager->redo();
        EXPECT_EQ(describe(*store), "Talk[a] Demo*[c|d*|e]");
    }

    TEST_F(CardStoreCards, UndoPastTheEndOfAShorterDeckAppends)
    {
        open("Talk*[a|b|c*] Demo[d]");
        store->deleteCard();
        store->switchToDeck(1);
        advance(3s);
        undoManager->undo();
        EXPECT_EQ(describe(*store), "Talk[a|b] Demo*[d|c*]");
        undoManager->redo();
        EXPECT_EQ(describe(*store), "Talk[a|b] Demo*[d*]");
    }

    TEST_F(CardStoreCards, UndoOfAMoveActsOnTheCardThatIsActiveThen)
    {
        open("Talk*[a|b|c|d*]");
        store->moveCardUp();
        store->prevCard();
        undoManager->undo();
        EXPECT_EQ(describe(*store), "Talk*[a|d|b*|c]");
    }

    TEST_F(CardStoreCards, AnUndoThatFindsNothingToDoIsUsedUp)
    {
        open("Talk*[a|b*] Demo[c]");
        store->moveCardUp();
        store->switchToDeck(1);
        advance(3s);
        (void)takeNotices();
        undoManager->undo();
        EXPECT_EQ(describe(*store), "Talk[b|a] Demo*[c*]");
        EXPECT_EQ(takeNotices(), "");
        EXPECT_EQ(describe(*undoManager), "undo '' redo ''");
    }

    TEST_F(CardStoreCards, WithoutAnUndoManagerOperationsStillWork)
    {
        open("Talk*[a*|b]");
        undoManager.reset(); // the store holds it weakly
        store->moveCardDown();
        store->deleteCard();
        store->addCard();
        store->cancelEdit();
        advance(3s);
        EXPECT_EQ(describe(*store), "Talk*[b|# New Card\n\nStart writing here.*]");
        undoManager = std::make_shared<UndoManager>();
    }

    TEST_F(CardStoreCards, UndoStepsOfAStoreThatHasGoneDoNothing)
    {
        open("Talk*[a|b*]");
        store->moveCardUp();
        store.reset();
        undoManager->undo();
        EXPECT_EQ(describe(*undoManager), "undo '' redo ''");
    }

    TEST_F(CardStoreCards, FeedbackStaysForTwoSeconds)
    {
        open("Talk*[a*]");
        store->showFeedback("Hello");
        EXPECT_EQ(takeNotices(), "feedbackMessage none");
        advance(1999ms);
        EXPECT_EQ(describe(*store), "Talk*[a*] feedback 'Hello'");
        advance(2ms);
        EXPECT_EQ(describe(*store), "Talk*[a*]");
        EXPECT_EQ(takeNotices(), "feedbackMessage 'Hello'");
    }

    TEST_F(CardStoreCards, ANewerFeedbackGetsItsOwnTwoSeconds)
    {
        open("Talk*[a*]");
        store->showFeedback("first");
        advance(1s);
        store->showFeedback("second");
        advance(1999ms);
        EXPECT_EQ(describe(*store), "Talk*[a*] feedback 'second'");
        advance(2ms);
        EXPECT_EQ(describe(*store), "Talk*[a*]");
    }

} // namespace

} // namespace cuebright::test
