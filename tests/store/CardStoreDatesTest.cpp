#include "store/CardStoreFixture.h"

namespace cuebright::test {

namespace {

/// Creation and modification date of each deck and card, in seconds since `start`; "-" if earlier.
std::string datesOf(const std::vector<Deck>& decks, Instant start)
{
    std::string text;
    const auto add = [&](const auto& item) {
        for (const auto date : {item.createdAt, item.updatedAt})
            text += date < start ? "-" : std::to_string((date - start) / std::chrono::seconds(1));
    };
    for (const auto& deck : decks) {
        add(deck);
        text += '[';
        for (const auto& card : deck.cards) {
            add(card);
            text += ' ';
        }
        text += ']';
    }
    return text;
}

class CardStoreDates : public CardStoreFixture { };

TEST_F(CardStoreDates, OnlyWhatChangesIsDatedAndWhatIsNewHasOneDate)
{
    const StoreOperation save = &CardStore::saveEdit;
    const StoreOperation openDemo = [](CardStore& s) { s.switchToDeck(1); };
    const StoreOperation create = [](CardStore& s) { s.createNewDeck("Notes"); };
    const StoreOperation rename = [](CardStore& s) { s.renameDeck("Keynote"); };
    const StoreOperation undo = [this](CardStore&) { undoManager->undo(); };
    const std::tuple<const char*, std::vector<StoreOperation>, const char*> cases[] = {
        {"Talk*[a*]", {&CardStore::addCard}, "-1[-- 00 ]"},
        {"Talk*[a*] editing 'typed'", {&CardStore::addCard}, "-3[-0 22 ]"},
        {"Talk*[a|b*]", {&CardStore::deleteCard}, "-0[-- ]"},
        {"Talk*[a|b*]", {&CardStore::moveCardUp}, "-0[-- -- ]"},
        {"Talk*[a|b*] editing 'b'", {save}, "-1[-- -0 ]"},
        {"Talk*[a*] editing 'typed'", {create}, "--[-- ]00[00 ]"},
        {"Talk*[a*] Demo[b] editing 'typed'", {openDemo}, "--[-- ]--[-- ]"},
        {"Talk*[a*] Demo[b]", {rename, openDemo, undo}, "-0[-- ]-1[-- ]"},
    };
    fake.clock.stepPerRead = std::chrono::seconds(1);
    for (const auto& [before, steps, dates] : cases) {
        open(before);
        const auto start = fake.clock.wallClock;
        for (const auto& step : steps)
            step(*store);
        EXPECT_EQ(datesOf(store->decks(), start), dates) << before;
    }
}

} // namespace

} // namespace cuebright::test
