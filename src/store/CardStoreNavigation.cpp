#include "store/CardStoreInternal.h"

#include "foundation/TwoDigits.h"
#include "platform/UuidSource.h"

namespace cuebright {

namespace {

constexpr Animation kCardMove {Animation::Curve::EaseInOut, Seconds(0.18)};
constexpr Animation kDeckSwitch {Animation::Curve::EaseInOut, Seconds(0.14)};
constexpr Seconds kDeckSwitchFlagTime {0.16};

} // namespace

std::int64_t CardStore::deckCount() const { return std::ssize(m_decks); }

const Deck* CardStore::activeDeck() const { return const_cast<CardStore*>(this)->mutableActiveDeck(); }

const Card* CardStore::activeCard() const { return const_cast<CardStore*>(this)->mutableActiveCard(); }

std::string CardStore::deckName() const
{
    const auto deck = activeDeck();
    return deck ? deck->name : std::string();
}

const std::vector<Card>& CardStore::cards() const
{
    static const std::vector<Card> kNone;
    const auto deck = activeDeck();
    return deck ? deck->cards : kNone;
}

std::int64_t CardStore::cardCount() const { return std::ssize(cards()); }

bool CardStore::canGoNext() const { return m_activeCardIndex < cardCount() - 1; }

bool CardStore::canGoPrev() const { return m_activeCardIndex > 0; }

std::string CardStore::positionLabel() const
{
    if (cardCount() == 0)
        return "CARD 0 / 0";
    return "CARD " + twoDigits(m_activeCardIndex + 1) + " / " + twoDigits(cardCount());
}

std::string CardStore::footerLabel() const
{
    if (cardCount() == 0)
        return "0 OF 0";
    return std::to_string(m_activeCardIndex + 1) + " OF " + std::to_string(cardCount());
}

void CardStore::nextCard()
{
    if (m_isEditing || !canGoNext())
        return;
    moveTo(m_activeCardIndex + 1, NavigationDirection::Forward);
}

void CardStore::prevCard()
{
    if (m_isEditing || !canGoPrev())
        return;
    moveTo(m_activeCardIndex - 1, NavigationDirection::Backward);
}

void CardStore::moveTo(std::int64_t cardIndex, NavigationDirection direction)
{
    set(m_navigationDirection, direction, Property::NavigationDirection);
    const AnimatedTransaction transaction(*this, kCardMove);
    set(m_activeCardIndex, cardIndex, Property::ActiveCardIndex);
}

void CardStore::switchToDeck(std::int64_t index)
{
    if (index < 0 || index >= deckCount() || index == m_activeDeckIndex)
        return;
    saveTextAndCloseEdit();
    set(m_activeCardIndex, 0, Property::ActiveCardIndex);
    set(m_activeDeckIndex, index, Property::ActiveDeckIndex);
    set(m_isDeckSwitch, true, Property::IsDeckSwitch);
    {
        const AnimatedTransaction transaction(*this, kDeckSwitch);
        set(m_deckTransitionID, m_platform.uuids.makeUuid(), Property::DeckTransitionID);
    }
    m_deckSwitchEnds.push_back(m_platform.mainQueue.after(kDeckSwitchFlagTime, [this] {
        m_deckSwitchEnds.pop_front();
        set(m_isDeckSwitch, false, Property::IsDeckSwitch);
    }));
    scheduleSave();
}

} // namespace cuebright
