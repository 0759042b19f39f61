#include "store/CardStoreFixture.h"

namespace cuebright::test {

namespace {

class CardStoreUndo : public CardStoreFixture { };

const std::string kAdded = "# New Card\n\nStart writing here.*";

TEST_F(CardStoreUndo, ActsOnTheDeckAndCardThatAreActiveThenAndAlternatesWithRedo)
{
    const StoreOperation add = [](CardStore& s) {
        s.addCard();
        s.cancelEdit();
    };
    const StoreOperation remove = &CardStore::deleteCard;
    const StoreOperation moveUp = &CardStore::moveCardUp;
    const StoreOperation goBack = &CardStore::prevCard;
    const StoreOperation create = [](CardStore& s) { s.createNewDeck("New"); };
    const StoreOperation removeDeck = &CardStore::deleteActiveDeck;
    const StoreOperation rename = [](CardStore& s) { s.renameDeck("Keynote"); };
    const StoreOperation undo = [this](CardStore&) { undoManager->undo(); };
    const StoreOperation openDemo = [](CardStore& s) { s.switchToDeck(1); };
    const struct {
        std::string before;
        std::vector<StoreOperation> steps;
        std::string undone;
        std::optional<std::string> redone; ///< absent: nothing can be redone
    } cases[] = {
        {"Talk*[a*|b]", {add, goBack, goBack}, "Talk*[a*|b]", "Talk*[a|b|" + kAdded + "]"},
        {"Talk*[] card 0", {add}, "Talk*[] card 0", "Talk*[" + kAdded + "]"},
        {"Talk*[a|b*|c]", {remove}, "Talk*[a|b*|c]", "Talk*[a|c*]"},
        // index beyond the other deck, so at its end
        {"Talk*[a|b|c*] Demo[d]", {remove, openDemo}, "Talk[a|b] Demo*[d|c*]", "Talk[a|b] Demo*[d*]"},
        {"Talk*[a|b|c|d*]", {moveUp, goBack}, "Talk*[a|d|b*|c]", "Talk*[a|b*|d|c]"},
        {"Talk*[a*|b|c]", {&CardStore::moveCardDown}, "Talk*[a*|b|c]", "Talk*[b|a*|c]"},
        {"Talk*[a|b*|c]", {remove, undo, moveUp}, "Talk*[a|b*|c]",
            "Talk*[b*|a|c]"}, // a new action clears the redo stack
        // the deck has one card
        {"Talk*[a|b*] Demo[c]", {moveUp, openDemo}, "Talk[b|a] Demo*[c*]", {}},
        {"Talk[a] Demo*[b|c*]", {create, openDemo, &CardStore::nextCard}, "Talk[a] Demo*[b*|c]",
            "Talk[a] Demo[b|c] New*[# New\n\nStart writing here.*]"},
        {"Talk[a] Demo*[b|c*]", {removeDeck}, "Talk[a] Demo*[b*|c]", "Talk*[a*]"},
        {"Talk*[a*] Demo[b] Notes[c]", {removeDeck}, "Talk*[a*] Demo[b] Notes[c]", "Demo*[b*] Notes[c]"},
        // intended: no redo
        {"Talk*[a*] Demo[b]", {rename, openDemo}, "Keynote[a] Talk*[b*]", {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.before);
        open(c.before);
        for (const auto& step : c.steps)
            step(*store);
        advance(3s);
        const auto name = undoManager->undoActionName();
        undoManager->undo();
        EXPECT_EQ(describe(*store), c.undone);
        EXPECT_EQ(describe(*undoManager), "undo '' redo '" + (c.redone ? name : "") + "'");
        for (int round = 0; round < 2 && c.redone; ++round) {
            undoManager->redo();
            EXPECT_EQ(describe(*store), c.redone);
            EXPECT_EQ(describe(*undoManager), "undo '" + name + "' redo ''");
            undoManager->undo();
        }
    }
}

TEST_F(CardStoreUndo, EachChangeOfTheStacksIsNotified)
{
    open("Talk*[a*|b]");
    std::vector<std::string> seen;
    const auto subscription = undoManager->changed.subscribe([&] { seen.push_back(describe(*undoManager)); });
    store->moveCardDown();
    EXPECT_EQ(seen.back(), "undo 'Move Card Down' redo ''");
    undoManager->undo();
    EXPECT_EQ(seen.back(), "undo '' redo 'Move Card Down'");
    undoManager->redo();
    EXPECT_EQ(seen.back(), "undo 'Move Card Down' redo ''");
    store->renameDeck("x");
    undoManager->undo(); // registers no redo
    EXPECT_EQ(seen.back(), "undo 'Move Card Down' redo ''");
    undoManager->removeAllActions();
    EXPECT_EQ(seen.back(), "undo '' redo ''");
}

TEST_F(CardStoreUndo, WhatWasDeletedComesBackAsItWas)
{
    fake.clock.wallClock = kWritten; // the deck's new date after the undo
    for (const auto remove : {&CardStore::deleteCard, &CardStore::deleteActiveDeck}) {
        open("Talk[a] Demo*[b*|c]");
        (*store.*remove)();
        undoManager->undo();
        store->flushToDisk();
        EXPECT_EQ(stateFile(), stateFileOf("Talk[a] Demo*[b*|c]"));
    }
}

TEST_F(CardStoreUndo, ARedoThatWouldRemoveTheLastDeckIsUsedUp)
{
    open("Talk*[a*] Demo[b]");
    store->deleteActiveDeck();
    undoManager->undo();
    stateFile() = stateFileOf("Only*[x*]");
    store->loadFromDisk();
    perform([this](CardStore&) { undoManager->redo(); });
    EXPECT_EQ(describe(*store), "Only*[x*]");
    EXPECT_TRUE(changes.empty());
    EXPECT_EQ(describe(*undoManager), "undo '' redo ''");
}

} // namespace

} // namespace cuebright::test
