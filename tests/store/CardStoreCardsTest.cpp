#include "store/CardStoreFixture.h"

namespace cuebright::test {

namespace {

class CardStoreCards : public CardStoreFixture { };

const std::string kNewCard = "# New Card\n\nStart writing here.";

TEST_F(CardStoreCards, OperationsTellTheirEffectsInOrder)
{
    const std::string added = "|" + kNewCard + "*] editing '" + kNewCard + "' feedback 'Card added'";
    const std::string deleted = " feedback 'Deleted — ⌘Z to undo'";
    const std::string inserting = "decks; navigationDirection forward; activeCardIndex 0; ";
    const std::string opening = "isEditing false ease-in-out 0.14; ";
    const std::string closing = "isEditing true ease-in-out 0.14; ";
    expectEffects({
        {"Talk*[a*|b]", &CardStore::addCard, "Talk*[a|b" + added,
            inserting + "editText ''; " + opening + "feedbackMessage none", 1, "Add Card"},
        {"Talk*[a*|b] editing 'typed'", &CardStore::addCard, "Talk*[typed|b" + added,
            "decks; " + closing + "feedbackMessage none; " + inserting + "editText 'typed'; " + opening
                + "feedbackMessage 'Saved'",
            1, "Add Card"},
        {"Talk*[a*|b|c]", &CardStore::deleteCard, "Talk*[b*|c]" + deleted,
            "decks; activeCardIndex 0; feedbackMessage none", 1, "Delete Card"},
        {"Talk*[a|b|c*]", &CardStore::deleteCard, "Talk*[a|b*]" + deleted,
            "decks; activeCardIndex 2; feedbackMessage none", 1, "Delete Card"},
        {"Talk*[a|b*] editing 'typed'", &CardStore::deleteCard, "Talk*[a*]" + deleted,
            "editText 'typed'; " + closing
                + "feedbackMessage none; decks; activeCardIndex 1; feedbackMessage 'Discarded'",
            1, "Delete Card"},
        {"Talk*[a|b*|c]", &CardStore::moveCardUp, "Talk*[b*|a|c]", "decks; activeCardIndex 1", 1, "Move Card Up"},
        {"Talk*[a|b*|c]", &CardStore::moveCardDown, "Talk*[a|c|b*]", "decks; activeCardIndex 1", 1, "Move Card Down"},
    });
}

TEST_F(CardStoreCards, ImpossibleOperationsDoNothing)
{
    expectNothing({
        {"Talk*[a*]", &CardStore::deleteCard},
        {"Talk*[a*] editing 'typed'", &CardStore::deleteCard},
        {"Talk*[] card 0", &CardStore::deleteCard},
        {"Talk*[a|b] card -1", &CardStore::deleteCard},
        {"Talk*[a*|b]", &CardStore::moveCardUp},
        {"Talk*[a|b*] editing 'typed'", &CardStore::moveCardUp},
        {"Talk*[a|b] card -1", &CardStore::moveCardUp},
        {"Talk*[a|b] card -9223372036854775808", &CardStore::moveCardUp},
        {"Talk*[] card 0", &CardStore::moveCardUp},
        {"Talk*[a|b*]", &CardStore::moveCardDown},
        {"Talk*[a*|b] editing 'typed'", &CardStore::moveCardDown},
        {"Talk*[a|b] card -1", &CardStore::moveCardDown},
        {"Talk*[] card 0", &CardStore::moveCardDown},
    });
}

TEST_F(CardStoreCards, EveryPairOfUndoAndRedoAlternates)
{
    const auto add = [](CardStore& s) {
        s.addCard();
        s.cancelEdit();
    };
    expectAlternations({
        {"Add Card", "Talk*[a*|b]", add, "Talk*[a|b|" + kNewCard + "*]", "Talk*[a|b*]"},
        {"Add Card", "Talk*[] card 0", add, "Talk*[" + kNewCard + "*]", "Talk*[] card 0"},
        {"Delete Card", "Talk*[a|b*|c]", &CardStore::deleteCard, "Talk*[a|c*]", "Talk*[a|b*|c]"},
        {"Move Card Up", "Talk*[a|b|c*]", &CardStore::moveCardUp, "Talk*[a|c*|b]", "Talk*[a|b|c*]"},
        {"Move Card Down", "Talk*[a*|b|c]", &CardStore::moveCardDown, "Talk*[b|a*|c]", "Talk*[a*|b|c]"},
    });
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
}

TEST_F(CardStoreCards, DeletingAndMovingDateTheDeckAloneAndKeepTheDirection)
{
    for (const auto operation : {&CardStore::deleteCard, &CardStore::moveCardUp, &CardStore::moveCardDown}) {
        open("Talk*[a|b|c*|d]");
        store->prevCard();
        (*store.*operation)();
        EXPECT_EQ(deck(0).updatedAt, surroundings.clock.wallClock);
        EXPECT_EQ(card(1).updatedAt, kWritten);
        EXPECT_EQ(store->navigationDirection(), NavigationDirection::Backward);
    }
}

TEST_F(CardStoreCards, UndoOfADeletionBringsTheSameCardBack)
{
    open("Talk*[a|b*|c] editing 'typed'");
    store->deleteCard();
    store->prevCard();
    undoManager->undo();
    EXPECT_EQ(card(1).content, "b");
    EXPECT_EQ(card(1).id, FakeUuidSource::nth(102));
    EXPECT_EQ(card(1).createdAt, kWritten);
    EXPECT_EQ(card(1).updatedAt, kWritten);
    EXPECT_EQ(deck(0).updatedAt, surroundings.clock.wallClock);
    EXPECT_EQ(store->navigationDirection(), NavigationDirection::Forward);
}

TEST_F(CardStoreCards, UndoActsOnTheDeckAndCardThatAreActiveThen)
{
    const StoreOperation openDemo = [](CardStore& s) { s.switchToDeck(1); };
    const StoreOperation previous = &CardStore::prevCard;
    const struct {
        const char* before;
        std::vector<StoreOperation> steps;
        std::string undone;
        std::string redone;
    } cases[] = {
        // past the end of the other deck, so at its end
        {"Talk*[a|b|c*] Demo[d]", {&CardStore::deleteCard, openDemo}, "Talk[a|b] Demo*[d|c*]", "Talk[a|b] Demo*[d*]"},
        {"Talk*[a|b|c|d*]", {&CardStore::moveCardUp, previous}, "Talk*[a|d|b*|c]", "Talk*[a|b*|d|c]"},
        {"Talk*[a*|b]", {&CardStore::addCard, &CardStore::cancelEdit, previous, previous}, "Talk*[a*|b]",
            "Talk*[a|b|" + kNewCard + "*]"},
        // nothing can move there, and the undo is used up
        {"Talk*[a|b*] Demo[c]", {&CardStore::moveCardUp, openDemo}, "Talk[b|a] Demo*[c*]", "Talk[b|a] Demo*[c*]"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.before);
        open(c.before);
        for (const auto& step : c.steps)
            step(*store);
        advance(3s);
        undoManager->undo();
        EXPECT_EQ(describe(*store), c.undone);
        EXPECT_FALSE(undoManager->canUndo());
        undoManager->redo();
        EXPECT_EQ(describe(*store), c.redone);
    }
}

TEST_F(CardStoreCards, WithoutItsUndoManagerOperationsStillWork)
{
    open("Talk*[a*|b]");
    undoManager = std::make_shared<UndoManager>(); // the store does not keep the former one
    store->moveCardDown();
    store->deleteCard();
    store->addCard();
    EXPECT_EQ(store->cardCount(), 2);
    EXPECT_EQ(describe(*undoManager), "undo '' redo ''");
}

TEST_F(CardStoreCards, FeedbackStaysForTwoSecondsFromTheLatestMessage)
{
    open("Talk*[a*]");
    store->showFeedback("first");
    advance(1s);
    store->showFeedback("second");
    advance(1999ms);
    EXPECT_EQ(describe(*store), "Talk*[a*] feedback 'second'");
    (void)takeNotices();
    advance(2ms);
    EXPECT_EQ(describe(*store), "Talk*[a*]");
    EXPECT_EQ(takeNotices(), "feedbackMessage 'second'");
}

} // namespace

} // namespace cuebright::test
