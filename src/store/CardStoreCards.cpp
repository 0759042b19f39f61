#include "store/CardStoreInternal.h"

#include "platform/Clock.h"
#include "platform/UuidSource.h"

#include <algorithm>
#include <cassert>

namespace cuebright {

namespace {

constexpr Seconds kFeedbackTime {2.0};
constexpr auto kNewCardContent = "# New Card\n\nStart writing here.";

} // namespace

void CardStore::addCard()
{
    if (!activeDeck())
        return;
    saveEdit();
    const auto now = m_platform.clock.now();
    performCardInsertion({m_platform.uuids.makeUuid(), kNewCardContent, now, now}, cardCount(), "Add Card");
    beginEditing();
    showFeedback("Card added");
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
    assert(index >= 0 && "a card is inserted at a position, never before the first");
    const auto position = std::min(index, cardCount());
    notifyWillChange(Property::Decks);
    auto& cards = mutableActiveDeck()->cards;
    cards.insert(cards.begin() + position, std::move(card));
    touchActiveDeck();
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
    auto& cards = mutableActiveDeck()->cards;
    const auto removed = cards.begin() + index;
    auto card = std::move(*removed);
    cards.erase(removed);
    touchActiveDeck();
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
    auto& cards = mutableActiveDeck()->cards;
    std::swap(cards[static_cast<std::size_t>(from)], cards[static_cast<std::size_t>(to)]);
    touchActiveDeck();
    set(m_activeCardIndex, to, Property::ActiveCardIndex);
    scheduleSave();
    registerUndo(distance < 0 ? "Move Card Up" : "Move Card Down", [this, distance] { moveActiveCard(-distance); });
}

void CardStore::showFeedback(std::string message)
{
    m_feedbackWorkItem.cancel();
    set(m_feedbackMessage, std::move(message), Property::FeedbackMessage);
    m_feedbackWorkItem = m_platform.mainQueue.after(
        kFeedbackTime, m_weakTarget.guard([this] { set(m_feedbackMessage, std::nullopt, Property::FeedbackMessage); }));
}

} // namespace cuebright
