#include "store/CardStoreFixture.h"

namespace cuebright::test {

namespace {

class CardStoreDecks : public CardStoreFixture { };

void createNotes(CardStore& store) { store.createNewDeck("Notes"); }

TEST_F(CardStoreDecks, OperationsHaveTheirEffects)
{
    const auto rename = [](CardStore& s) { s.renameDeck("Keynote"); };
    const std::string notes = " Notes*[# Notes\n\nStart writing here.*]";
    expectEffects({
        {"Talk*[a|b*] Demo[c]", createNotes, "Talk[a|b] Demo[c]" + notes, 1, "New Deck"},
        {"Talk*[a|b*] editing 'typed'", createNotes, "Talk[a|typed]" + notes, 1, "New Deck"},
        {"Talk*[a] card -1 editing 'typed'", createNotes, "Talk[a]" + notes, 1, "New Deck"},
        {"Talk*[a*] Demo[b|c]", &CardStore::deleteActiveDeck, "Demo*[b*|c]", 1, "Delete Deck"},
        {"Talk[a|b] Demo*[c*] Notes[d|e]", &CardStore::deleteActiveDeck, "Talk[a|b] Notes*[d*|e]", 1, "Delete Deck"},
        {"Talk[a|b] Demo*[c|d*] editing 'typed'", &CardStore::deleteActiveDeck, "Talk*[a*|b]", 1, "Delete Deck"},
        {"Talk*[a|b*]", rename, "Keynote*[a|b*] feedback 'Renamed'", 1, "Rename Deck"},
        {"Keynote*[a*] editing 'b'", rename, "Keynote*[a*] editing 'b' feedback 'Renamed'", 1, "Rename Deck"},
    });
}

TEST_F(CardStoreDecks, ImpossibleOperationsDoNothing)
{
    expectNothing({
        {"Talk*[a*]", &CardStore::deleteActiveDeck},
        {"Talk*[a*] editing 'typed'", &CardStore::deleteActiveDeck},
        {"Talk*[a*]", [](CardStore& s) { s.renameDeck(" \t\u3000 "); }},
    });
}

TEST_F(CardStoreDecks, NamesLoseSpacesAndTabsAtBothEnds)
{
    const std::tuple<const char*, std::string, std::string> cases[] = {
        {"\tQ3\treview\t ", "Q3\treview", "Q3\treview"},
        {"\u3000\u00a0Q3\u2003\u202f", "Q3", "Q3"},
        {" \nQ3\n ", "\nQ3\n", "\nQ3\n"},
        {" \n ", "\n", "\n"},
        {"", "Untitled Deck", "Talk"},
        {"\t\u3000 ", "Untitled Deck", "Talk"},
    };
    for (const auto& [given, created, renamed] : cases) {
        SCOPED_TRACE(testing::PrintToString(given));
        open("Talk*[a*]");
        store->renameDeck(given);
        EXPECT_EQ(store->deckName(), renamed);
        store->createNewDeck(given);
        EXPECT_EQ(store->deckName(), created);
        EXPECT_EQ(card(0).content, "# " + created + "\n\nStart writing here.");
    }
}

TEST_F(CardStoreDecks, AnExportPutsRulesBetweenTheStoredCards)
{
    const std::pair<const char*, const char*> cases[] = {
        {"Talk*[A*] editing 'typed'", "A"},
        {"Talk*[ A \n\n|B\n|C*]", " A \n\n\n\n---\n\nB\n\n\n---\n\nC"},
        {"Talk*[|B]", "\n\n---\n\nB"},
        {"Talk*[]", ""},
        {"Talk[A] Demo*[B]", "B"},
    };
    for (const auto& [decks, exported] : cases) {
        open(decks);
        EXPECT_EQ(store->exportDeckAsMarkdown(), exported) << decks;
    }
}

} // namespace

} // namespace cuebright::test
