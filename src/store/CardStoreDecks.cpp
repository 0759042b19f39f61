#include "store/CardStoreInternal.h"

#include "foundation/Unicode.h"
#include "platform/Clock.h"
#include "platform/UuidSource.h"

#include <algorithm>
#include <cassert>

namespace cuebright {

void CardStore::createNewDeck(std::string_view name)
{
    saveTextAndCloseEdit();
    std::string trimmed(trimBlanks(name));
    if (trimmed.empty())
        trimmed = "Untitled Deck";
    const auto now = m_platform.clock.now();
    auto card = makeCard(trimmed, now);
    Deck deck {m_platform.uuids.makeUuid(), std::move(trimmed), {}, now, now};
    deck.cards.push_back(std::move(card));
    performDeckInsertion(std::move(deck), deckCount(), "New Deck");
}

void CardStore::performDeckInsertion(Deck deck, std::int64_t index, const std::string& actionName)
{
    assert(index >= 0 && "a deck is inserted at a non-negative index");
    const auto position = std::min(index, deckCount());
    notifyWillChange(Property::Decks);
    m_decks.insert(m_decks.begin() + position, std::move(deck));
    set(m_activeCardIndex, 0, Property::ActiveCardIndex);
    set(m_activeDeckIndex, position, Property::ActiveDeckIndex);
    scheduleSave();
    registerUndo(actionName, [this, position, actionName] { performDeckRemoval(position, actionName); });
}

bool CardStore::canDeleteDeck() const { return deckCount() >= 2; }

void CardStore::deleteActiveDeck()
{
    if (!canDeleteDeck())
        return;
    if (m_isEditing)
        set(m_isEditing, false, Property::IsEditing);
    performDeckRemoval(m_activeDeckIndex, "Delete Deck");
}

void CardStore::performDeckRemoval(std::int64_t index, const std::string& actionName)
{
    if (index < 0 || index >= deckCount() || !canDeleteDeck())
        return;
    notifyWillChange(Property::Decks);
    const auto removed = m_decks.begin() + index;
    auto deck = std::move(*removed);
    m_decks.erase(removed);
    set(m_activeCardIndex, 0, Property::ActiveCardIndex);
    set(m_activeDeckIndex, std::min(deckCount() - 1, m_activeDeckIndex), Property::ActiveDeckIndex);
    scheduleSave();
    registerUndo(actionName,
        [this, deck = std::move(deck), index, actionName] { performDeckInsertion(deck, index, actionName); });
}

void CardStore::renameDeck(std::string_view name)
{
    const auto deck = activeDeck();
    const auto trimmed = trimBlanks(name);
    if (!deck || trimmed.empty())
        return;
    auto oldName = deck->name;
    nameActiveDeck(std::string(trimmed));
    showFeedback("Renamed");
    // Deliberately renames the deck that is active when it runs, and registers no redo.
    registerUndo("Rename Deck", [this, oldName = std::move(oldName)] {
        if (activeDeck())
            nameActiveDeck(oldName);
    });
}

void CardStore::nameActiveDeck(std::string name)
{
    notifyWillChange(Property::Decks);
    const auto deck = mutableActiveDeck();
    deck->name = std::move(name);
    deck->updatedAt = m_platform.clock.now();
    scheduleSave();
}

std::string CardStore::exportDeckAsMarkdown() const
{
    std::string text;
    for (const auto& card : cards()) {
        if (&card != &cards().front())
            text += "\n\n---\n\n";
        text += card.content;
    }
    return text;
}

} // namespace cuebright
