#include "store/CardStoreInternal.h"

#include "platform/Clock.h"
#include "platform/UuidSource.h"

#include <algorithm>
#include <cassert>

namespace cuebright {

namespace {

constexpr Seconds kFeedbackTime {2.0};

} // namespace

void CardStore::addCard()
{
    if (!activeDeck())
        return;
    saveEdit();
    performCardInsertion(makeCard("New Card", m_platform.clock.now()), cardCount(), "Add Card");
    beginEditing();
    showFeedback("Card added");
}

Card CardStore::makeCard(const std::string& title, Instant now)
{
    return {m_platform.uuids.makeUuid(), "# " + title + "\n\nStart writing here.", now, now};
}

bool CardStore::canDeleteCard() const { return activeCard() && cardCount() >= 2; }

void CardStore::deleteCard()
{
    if (!canDeleteCard())
        return;
    cancelEdit();
    performCardRemoval(m_activeCardIndex, "Delete Card");
    showFeedback("Deleted — ⌘Z to undo");
}

void CardStore::performCardInsertion(Card card, std::int64_t index, const std::string& actionName)
{
    if (!activeDeck())
        return;
    assert(index >= 0 && "a card is inserted at a non-negative index");
    const auto position = std::min(index, cardCount());
    notifyWillChange(Property::Decks);
    const auto deck = mutableActiveDeck();
    deck->cards.insert(deck->cards.begin() + position, std::move(card));
    deck->updatedAt = m_platform.clock.now();
    set(m_navigationDirection, NavigationDirection::Forward, Property::NavigationDirection);
    set(m_activeCardIndex, position, Property::ActiveCardIndex);
    scheduleSave();
    registerUndo(actionName, [this, position, actionName] { performCardRemoval(position, actionName); });
}

void CardStore::performCardRemoval(std::int64_t index, const std::string& actionName)
{
    if (index < 0 || index >= cardCount())
        return;
    notifyWillChange(Property::Decks);
    const auto deck = mutableActiveDeck();
    const auto removed = deck->cards.begin() + index;
    auto card = std::move(*removed);
    deck->cards.erase(removed);
    deck->updatedAt = m_platform.clock.now();
    const auto lastIndex = std::max<std::int64_t>(cardCount() - 1, 0);
    set(m_activeCardIndex, std::min(m_activeCardIndex, lastIndex), Property::ActiveCardIndex);
    scheduleSave();
    registerUndo(actionName,
        [this, card = std::move(card), index, actionName] { performCardInsertion(card, index, actionName); });
}

bool CardStore::canMoveCardUp() const { return activeCard() && !m_isEditing && canGoPrev(); }

bool CardStore::canMoveCardDown() const { return activeCard() && !m_isEditing && canGoNext(); }

void CardStore::moveCardUp() { moveActiveCard(-1); }

void CardStore::moveCardDown() { moveActiveCard(1); }

void CardStore::moveActiveCard(std::int64_t distance)
{
    if (!activeCard() || m_isEditing)
        return;
    const auto from = m_activeCardIndex;
    const auto to = from + distance;
    if (to < 0 || to >= cardCount())
        return;
    notifyWillChange(Property::Decks);
    const auto deck = mutableActiveDeck();
    std::swap(deck->cards[static_cast<std::size_t>(from)], deck->cards[static_cast<std::size_t>(to)]);
    deck->updatedAt = m_platform.clock.now();
    set(m_activeCardIndex, to, Property::ActiveCardIndex);
    scheduleSave();
    registerUndo(distance < 0 ? "Move Card Up" : "Move Card Down", [this, distance] { moveActiveCard(-distance); });
}

void CardStore::showFeedback(std::string message)
{
    set(m_feedbackMessage, std::move(message), Property::FeedbackMessage);
    m_feedbackWorkItem = m_platform.mainQueue.after(
        kFeedbackTime, [this] { set(m_feedbackMessage, std::nullopt, Property::FeedbackMessage); });
}

} // namespace cuebright
