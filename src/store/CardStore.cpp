#include "store/CardStoreInternal.h"

#include "platform/UuidSource.h"

#include <utility>

namespace cuebright {

CardStore::CardStore(const Platform& platform)
    : m_platform(platform)
    , m_deckTransitionID(platform.uuids.makeUuid())
{
    openAppSupportDir();
    readPreferences();
    loadFromDisk();
    applyThemeToApp();
}

CardStore::~CardStore()
{
    if (const auto undoManager = m_undoManager.lock())
        undoManager->removeAllActions();
}

void CardStore::setUndoManager(std::weak_ptr<UndoManager> undoManager) { m_undoManager = std::move(undoManager); }

void CardStore::registerUndo(const std::string& actionName, std::function<void()> action)
{
    const auto undoManager = m_undoManager.lock();
    if (!undoManager)
        return;
    undoManager->registerUndo(std::move(action));
    undoManager->setActionName(actionName);
}

void CardStore::notifyWillChange(Property property) { willChange.notify(Change {property, m_animation}); }

Deck* CardStore::mutableActiveDeck()
{
    if (m_activeDeckIndex < 0 || m_activeDeckIndex >= deckCount())
        return nullptr;
    return &m_decks[static_cast<std::size_t>(m_activeDeckIndex)];
}

Card* CardStore::mutableActiveCard()
{
    const auto deck = mutableActiveDeck();
    if (!deck || m_activeCardIndex < 0 || m_activeCardIndex >= cardCount())
        return nullptr;
    return &deck->cards[static_cast<std::size_t>(m_activeCardIndex)];
}

} // namespace cuebright
