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
