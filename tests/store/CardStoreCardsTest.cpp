#include "store/CardStoreFixture.h"

namespace cuebright::test {

namespace {

class CardStoreCards : public CardStoreFixture { };

const std::string kNewCard = "# New Card\n\nStart writing here.";

TEST_F(CardStoreCards, OperationsHaveTheirEffects)
{
    const std::string added = "|" + kNewCard + "*] editing '" + kNewCard + "' feedback 'Card added'";
    const std::string deleted = " feedback 'Deleted — ⌘Z to undo'";
    expectEffects({
        {"Talk*[a*|b]", &CardStore::addCard, "Talk*[a|b" + added, 1, "Add Card"},
        {"Talk*[a*|b] editing 'typed'", &CardStore::addCard, "Talk*[typed|b" + added, 1, "Add Card"},
        {"Talk*[a*|b|c]", &CardStore::deleteCard, "Talk*[b*|c]" + deleted, 1, "Delete Card"},
        {"Talk*[a|b|c*]", &CardStore::deleteCard, "Talk*[a|b*]" + deleted, 1, "Delete Card"},
        {"Talk*[a|b*] editing 'typed'", &CardStore::deleteCard, "Talk*[a*]" + deleted, 1, "Delete Card"},
        {"Talk*[a|b*|c]", &CardStore::moveCardUp, "Talk*[b*|a|c]", 1, "Move Card Up"},
        {"Talk*[a|b*|c]", &CardStore::moveCardDown, "Talk*[a|c|b*]", 1, "Move Card Down"},
    });
}

TEST_F(CardStoreCards, ImpossibleOperationsDoNothing)
{
    expectNothing({
        {"Talk*[a*]", &CardStore::deleteCard},
        {"Talk*[a*] editing 'typed'", &CardStore::deleteCard},
        {"Talk*[a|b] card -1", &CardStore::deleteCard},
        {"Talk*[a*|b]", &CardStore::moveCardUp},
        {"Talk*[a|b*] editing 'typed'", &CardStore::moveCardUp},
        {"Talk*[a|b] card -9223372036854775808", &CardStore::moveCardUp},
        {"Talk*[a|b*]", &CardStore::moveCardDown},
        {"Talk*[a*|b] editing 'typed'", &CardStore::moveCardDown},
        {"Talk*[a|b] card -1", &CardStore::moveCardDown},
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
    perform([this](CardStore&) { advance(2ms); });
    EXPECT_EQ(describe(*store), "Talk*[a*]");
}

} // namespace

} // namespace cuebright::test
