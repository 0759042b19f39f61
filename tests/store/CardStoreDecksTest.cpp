#include "store/CardStoreFixture.h"

namespace cuebright::test {

namespace {

    class CardStoreDecks : public CardStoreFixture { };

    TEST_F(CardStoreDecks, CreateNewDeckAppendsADeckAndOpensItsOneCard)
    {
        open("Talk[a] Demo*[b|c*]");
        const auto transition = store->deckTransitionId();
        store->createNewDeck("Notes");
        EXPECT_EQ(describe(*store), "Talk[a] Demo[b|c] Notes*[# Notes\n\nStart writing here.*]");
        EXPECT_EQ(takeNotices(), "decks; activeCardIndex 1; activeDeckIndex 1");
        EXPECT_EQ(store->deckTransitionId(), transition);
        EXPECT_FALSE(store->isDeckSwitch());
        EXPECT_EQ(describe(*undoManager), "undo 'New Deck' redo ''");
    }

    TEST_F(CardStoreDecks, CreateNewDeckGivesOneDateAndTwoFreshIdentifiers)
    {
        open("Talk*[a*]");
        surroundings.clock.stepPerRead = 1s;
        const auto now = surroundings.clock.wallClock;
        store->createNewDeck("Notes");
        for (const auto date : { deck(1).createdAt, deck(1).updatedAt, card(0).createdAt, card(0).updatedAt })
            EXPECT_EQ(date, now);
        EXPECT_NE(deck(1).id, card(0).id);
    }

    TEST_F(CardStoreDecks, NamesLoseSpacesAndTabsAtBothEnds)
    {
        struct Case {
            const char* name;
            const char* given;
            const char* created;
            const char* renamed;
        };
        const Case cases[] = {
            { "plain", "Q3 review", "Q3 review", "Q3 review" },
            { "spaces", "  Q3 review  ", "Q3 review", "Q3 review" },
            { "tabs", "\tQ3\treview\t ", "Q3\treview", "Q3\treview" },
            { "wide spaces", "\u3000\u00a0Q3\u2003\u202f", "Q3", "Q3" },
            { "line breaks stay", " \nQ3\n ", "\nQ3\n", "\nQ3\n" },
            { "only a line break", " \n ", "\n", "\n" },
            { "empty", "", "Untitled Deck", "Talk" },
            { "three spaces", "   ", "Untitled Deck", "Talk" },
            { "only tabs and wide spaces", "\t\u3000\t", "Untitled Deck", "Talk" },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.name);
            open("Talk*[a*]");
            store->renameDeck(c.given);
            EXPECT_EQ(store->deckName(), c.renamed);
            store->createNewDeck(c.given);
            EXPECT_EQ(store->deckName(), c.created);
            EXPECT_EQ(card(0).content, "# " + std::string(c.created) + "\n\nStart writing here.");
        }
    }

    TEST_F(CardStoreDecks, CreateNewDeckKeepsAnOpenEditWithoutCeremony)
    {
        open("Talk*[a|b*]");
        store->beginEditing();
        store->setEditText("typed");
        (void)takeNotices();
        store->createNewDeck("Notes");
        EXPECT_EQ(describe(*store), "Talk[a|typed] Notes*[# Notes\n\nStart writing here.*]");
        EXPECT_EQ(deck(0).cards[1].updatedAt, kWritten);
        EXPECT_EQ(deck(0).updatedAt, kWritten);
        EXPECT_EQ(takeNotices(), "decks; isEditing true; decks; activeCardIndex 1; activeDeckIndex 0");
    }

    TEST_F(CardStoreDecks, CreateNewDeckEndsAnEditWhoseCardHasGone)
    {
        open("Talk*[a*]");
        store->beginEditing();
        store->setEditText("typed");
        surroundings.fileSystem.files[std::string(kStateFile)] = stateFileOf("Talk*[a]", -1);
        store->loadFromDisk();
        store->createNewDeck("Notes");
        EXPECT_EQ(describe(*store), "Talk[a] Notes*[# Notes\n\nStart writing here.*]");
    }

    TEST_F(CardStoreDecks, DeleteActiveDeckOpensTheFollowingDeckOrTheNewLastOne)
    {
        struct Case {
            const char* before;
            const char* after;
        };
        const Case cases[] = {
            { "Talk*[a|b*] Demo[c] Notes[d|e]", "Demo*[c*] Notes[d|e]" },
            { "Talk[a|b] Demo*[c*] Notes[d|e]", "Talk[a|b] Notes*[d*|e]" },
            { "Talk[a|b] Demo[c] Notes*[d|e*]", "Talk[a|b] Demo*[c*]" },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.before);
            open(c.before);
            store->deleteActiveDeck();
            EXPECT_EQ(describe(*store), c.after);
            EXPECT_EQ(describe(*undoManager), "undo 'Delete Deck' redo ''");
        }
    }

    TEST_F(CardStoreDecks, DeleteActiveDeckDropsAnOpenEditWithoutAWord)
    {
        open("Talk[a] Demo*[b|c*]");
        store->beginEditing();
        store->setEditText("typed");
        (void)takeNotices();
        store->deleteActiveDeck();
        EXPECT_EQ(describe(*store), "Talk*[a*]");
        EXPECT_EQ(takeNotices(), "isEditing true; decks; activeCardIndex 1; activeDeckIndex 1");
        undoManager->undo();
        EXPECT_EQ(describe(*store), "Talk[a] Demo*[b*|c]");
    }

    TEST_F(CardStoreDecks, TheOnlyDeckCannotBeDeleted)
    {
        open("Talk*[a*]");
        store->beginEditing();
        store->setEditText("typed");
        (void)takeNotices();
        store->deleteActiveDeck();
        advance(1s);
        EXPECT_EQ(describe(*store), "Talk*[a*] editing 'typed'");
        EXPECT_EQ(takeNotices(), "");
        EXPECT_EQ(describe(*undoManager), "undo '' redo ''");
        EXPECT_EQ(saves(), 0U);
    }

    TEST_F(CardStoreDecks, NewAndDeletedDecksAlternateBetweenUndoAndRedo)
    {
        struct Case {
            const char* name;
            const char* before;
            void (*operation)(CardStore&);
            const char* after;
            const char* undone;
        };
        const auto remove = [](CardStore& s) { s.deleteActiveDeck(); };
        const Case cases[] = {
            { "New Deck", "Talk*[a|b*]", [](CardStore& s) { s.createNewDeck("Demo"); },
                "Talk[a|b] Demo*[# Demo\n\nStart writing here.*]", "Talk*[a*|b]" },
            { "Delete Deck", "Talk[a] Demo[b] Notes*[c|d*]", remove, "Talk[a] Demo*[b*]", "Talk[a] Demo[b] Notes*[c*|d]" },
            { "Delete Deck", "Talk*[a*] Demo[b] Notes[c]", remove, "Demo*[b*] Notes[c]", "Talk*[a*] Demo[b] Notes[c]" },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.before);
            open(c.before);
            c.operation(*store);
            advance(1s);
            for (std::size_t round = 1; round <= 3; ++round) {
                SCOPED_TRACE(round);
                EXPECT_EQ(describe(*store), c.after);
                EXPECT_EQ(describe(*undoManager), "undo '" + std::string(c.name) + "' redo ''");
                undoManager->undo();
                EXPECT_EQ(describe(*store), c.undone);
                EXPECT_EQ(describe(*undoManager), "undo '' redo '" + std::string(c.name) + "'");
                advance(250ms);
                EXPECT_EQ(saves(), 2 * round);
                undoManager->redo();
                advance(250ms);
                EXPECT_EQ(saves(), 2 * round + 1);
            }
        }
    }

    TEST_F(CardStoreDecks, UndoOfADeletionBringsTheSameDeckBack)
    {
        open("Talk[a] Demo*[b*|c]");
        store->deleteActiveDeck();
        undoManager->undo();
        EXPECT_EQ(deck(1).id, FakeUuidSource::nth(200));
        EXPECT_EQ(deck(1).createdAt, kWritten);
        EXPECT_EQ(deck(1).updatedAt, kWritten);
        EXPECT_EQ(deck(1).cards[1].id, FakeUuidSource::nth(202));
    }

    TEST_F(CardStoreDecks, UndoOfANewDeckLeavesAnotherActiveDeckWhereItIs)
    {
        open("Talk[a|b] Demo*[c*]");
        store->createNewDeck("Notes");
        store->switchToDeck(0);
        store->nextCard();
        undoManager->undo();
        EXPECT_EQ(describe(*store), "Talk*[a*|b] Demo[c]");
    }

    TEST_F(CardStoreDecks, ARedoThatWouldRemoveTheLastDeckIsUsedUp)
    {
        open("Talk*[a*] Demo[b]");
        store->deleteActiveDeck();
        undoManager->undo();
        surroundings.fileSystem.files[std::string(kStateFile)] = stateFileOf("Only*[x*]");
        store->loadFromDisk();
        (void)takeNotices();
        undoManager->redo();
        EXPECT_EQ(describe(*store), "Only*[x*]");
        EXPECT_EQ(takeNotices(), "");
        EXPECT_EQ(describe(*undoManager), "undo '' redo ''");
    }

    TEST_F(CardStoreDecks, RenameDeckReportsAndCanBeUndoneOnceButNotRedone)
    {
        open("Talk*[a|b*]");
        const auto now = surroundings.clock.wallClock;
        store->renameDeck("Keynote");
        EXPECT_EQ(describe(*store), "Keynote*[a|b*] feedback 'Renamed'");
        EXPECT_EQ(deck(0).updatedAt, now);
        EXPECT_EQ(takeNotices(), "decks; feedbackMessage none");
        EXPECT_EQ(describe(*undoManager), "undo 'Rename Deck' redo ''");
        advance(3s);
        EXPECT_EQ(saves(), 1U);
        undoManager->undo();
        EXPECT_EQ(describe(*store), "Talk*[a|b*]");
        EXPECT_EQ(deck(0).updatedAt, now + 3s);
        EXPECT_EQ(describe(*undoManager), "undo '' redo ''");
        advance(250ms);
        EXPECT_EQ(saves(), 2U);
    }

    TEST_F(CardStoreDecks, UndoOfARenameNamesTheDeckThatIsActiveThen)
    {
        open("Talk*[a*] Demo[b]");
        store->renameDeck("Keynote");
        store->switchToDeck(1);
        advance(3s);
        undoManager->undo();
        EXPECT_EQ(describe(*store), "Keynote[a] Talk*[b*]");
        EXPECT_EQ(deck(1).updatedAt, surroundings.clock.wallClock);
    }

    TEST_F(CardStoreDecks, ABlankNameIsNoRename)
    {
        open("Talk*[a*]");
        store->renameDeck(" \t ");
        advance(1s);
        EXPECT_EQ(takeNotices(), "");
        EXPECT_EQ(describe(*undoManager), "undo '' redo ''");
        EXPECT_EQ(deck(0).updatedAt, kWritten);
        EXPECT_EQ(saves(), 0U);
    }

    TEST_F(CardStoreDecks, RenameDeckToTheSameNameIsARename)
    {
        open("Talk*[a*]");
        store->renameDeck("Talk");
        EXPECT_EQ(describe(*store), "Talk*[a*] feedback 'Renamed'");
        EXPECT_EQ(deck(0).updatedAt, surroundings.clock.wallClock);
        EXPECT_EQ(describe(*undoManager), "undo 'Rename Deck' redo ''");
    }

    TEST_F(CardStoreDecks, RenameDeckLeavesAnOpenEditAlone)
    {
        open("Talk*[a*]");
        store->beginEditing();
        store->setEditText("typed");
        store->renameDeck("Keynote");
        EXPECT_EQ(describe(*store), "Keynote*[a*] editing 'typed' feedback 'Renamed'");
    }

    TEST_F(CardStoreDecks, AnExportPutsRulesBetweenTheCards)
    {
        struct Case {
            const char* decks;
            const char* exported;
        };
        const Case cases[] = {
            { "Talk*[A*|B]", "A\n\n---\n\nB" },
            { "Talk*[A]", "A" },
            { "Talk*[ A \n\n|B\n|C*]", " A \n\n\n\n---\n\nB\n\n\n---\n\nC" },
            { "Talk*[|B]", "\n\n---\n\nB" },
            { "Talk*[]", "" },
            { "Talk[A] Demo*[B]", "B" },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.decks);
            open(c.decks);
            EXPECT_EQ(store->exportDeckAsMarkdown(), c.exported);
        }
    }

    TEST_F(CardStoreDecks, AnExportHoldsWhatIsStoredNotWhatIsBeingTyped)
    {
        open("Talk*[a*]");
        store->beginEditing();
        store->setEditText("typed");
        EXPECT_EQ(store->exportDeckAsMarkdown(), "a");
    }

} // namespace

} // namespace cuebright::test
