#include "store/CardStoreFixture.h"

namespace cuebright::test {

namespace {

class CardStoreDecks : public CardStoreFixture { };

void createNotes(CardStore& store) { store.createNewDeck("Notes"); }

TEST_F(CardStoreDecks, OperationsTellTheirEffectsInOrder)
{
    const auto rename = [](CardStore& s) { s.renameDeck("Keynote"); };
    const std::string notes = " Notes*[# Notes\n\nStart writing here.*]";
    const std::string inserting = "decks; activeCardIndex 1; activeDeckIndex 0";
    expectEffects({
        {"Talk*[a|b*] Demo[c]", createNotes, "Talk[a|b] Demo[c]" + notes, inserting, 1, "New Deck"},
        {"Talk*[a|b*] editing 'typed'", createNotes, "Talk[a|typed]" + notes, "decks; isEditing true; " + inserting, 1,
            "New Deck"},
        {"Talk*[a] card -1 editing 'typed'", createNotes, "Talk[a]" + notes,
            "isEditing true; decks; activeCardIndex -1; activeDeckIndex 0", 1, "New Deck"},
        {"Talk*[a*] Demo[b|c]", &CardStore::deleteActiveDeck, "Demo*[b*|c]",
            "decks; activeCardIndex 0; activeDeckIndex 0", 1, "Delete Deck"},
        {"Talk[a|b] Demo*[c*] Notes[d|e]", &CardStore::deleteActiveDeck, "Talk[a|b] Notes*[d*|e]",
            "decks; activeCardIndex 0; activeDeckIndex 1", 1, "Delete Deck"},
        {"Talk[a|b] Demo[c] Notes*[d|e*] editing 'typed'", &CardStore::deleteActiveDeck, "Talk[a|b] Demo*[c*]",
            "isEditing true; decks; activeCardIndex 1; activeDeckIndex 2", 1, "Delete Deck"},
        {"Talk*[a|b*]", rename, "Keynote*[a|b*] feedback 'Renamed'", "decks; feedbackMessage none", 1, "Rename Deck"},
        {"Keynote*[a*] editing 'b'", rename, "Keynote*[a*] editing 'b' feedback 'Renamed'",
            "decks; feedbackMessage none", 1, "Rename Deck"},
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
