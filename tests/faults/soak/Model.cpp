#include "Model.h"

#include "platform/qt/TextConversion.h"

#include <algorithm>

namespace cuebright::soak {

namespace {

/// White space, of which the first seven end lines.
const auto kWhite = QStringLiteral("\n\v\f\r\u0085\u2028\u2029\t \u00a0\u1680\u2000\u2001\u2002\u2003\u2004\u2005"
                                   "\u2006\u2007\u2008\u2009\u200a\u202f\u205f\u3000");

bool isWhite(QChar unit) { return kWhite.contains(unit); }

bool isBlank(QChar unit) { return kWhite.indexOf(unit) > 6; }

std::string trimmed(const std::string& name)
{
    auto text = toQString(name);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return toUtf8(text.mid(std::find_if_not(text.cbegin(), text.cend(), isBlank) - text.cbegin()));
}

template <typename List> auto at(List& list, std::int64_t index) { return list.begin() + index; }

} // namespace

Deck* Model::activeDeck() { return deckIndex >= 0 && deckIndex < std::ssize(decks) ? &*at(decks, deckIndex) : nullptr; }

Card* Model::activeCard()
{
    return cardIndex >= 0 && cardIndex < cardCount() ? &*at(activeDeck()->cards, cardIndex) : nullptr;
}

std::int64_t Model::cardCount() { return activeDeck() ? std::ssize(activeDeck()->cards) : 0; }

void Model::nextCard()
{
    if (isEditing || cardIndex >= cardCount() - 1)
        return;
    isForward = true;
    ++cardIndex;
}

void Model::prevCard()
{
    if (isEditing || cardIndex < 1)
        return;
    isForward = false;
    --cardIndex;
}

void Model::keepEdit()
{
    if (isEditing && activeCard())
        activeCard()->content = editText;
    isEditing = false;
}

void Model::switchToDeck(std::int64_t index)
{
    if (index < 0 || index >= std::ssize(decks) || index == deckIndex)
        return;
    keepEdit();
    cardIndex = 0;
    deckIndex = index;
    isDeckSwitch = true;
    transitionId = fake.uuids.makeUuid();
    later(0.16, [this] { isDeckSwitch = false; });
    scheduleSave();
}

void Model::beginEditing()
{
    if (isEditing || !activeCard())
        return;
    originalText = activeCard()->content;
    const auto text = toQString(originalText);
    editText = std::all_of(text.begin(), text.end(), isWhite) ? "# " : originalText;
    isEditing = true;
    editBegins = true;
}

void Model::setEditText(const std::string& text) { editText = text; }

void Model::saveEdit()
{
    if (!isEditing || !activeCard())
        return;
    activeCard()->content = editText;
    activeCard()->updatedAt = fake.clock.wallClock;
    activeDeck()->updatedAt = fake.clock.wallClock;
    isEditing = false;
    scheduleSave();
    if (editText != originalText)
        showFeedback("Saved");
}

void Model::cancelEdit()
{
    if (!isEditing)
        return;
    const bool isChanged = editText != originalText;
    editText = originalText;
    isEditing = false;
    if (isChanged)
        showFeedback("Discarded");
}

void Model::addCard()
{
    if (!activeDeck())
        return;
    saveEdit();
    insertCard({fake.uuids.makeUuid(), "# New Card\n\nStart writing here.", fake.clock.wallClock, fake.clock.wallClock},
        cardCount(), "Add Card");
    beginEditing();
    showFeedback("Card added");
}

void Model::deleteCard()
{
    if (cardCount() < 2 || !activeCard())
        return;
    cancelEdit();
    removeCard(cardIndex, "Delete Card");
    showFeedback("Deleted — ⌘Z to undo");
}

void Model::insertCard(const Card& card, std::int64_t index, const std::string& actionName)
{
    if (!activeDeck())
        return;
    cardIndex = std::min(index, cardCount());
    activeDeck()->cards.insert(at(activeDeck()->cards, cardIndex), card);
    activeDeck()->updatedAt = fake.clock.wallClock;
    isForward = true;
    scheduleSave();
    registerUndo(actionName, [position = cardIndex, actionName](Model& m) { m.removeCard(position, actionName); });
}

void Model::removeCard(std::int64_t index, const std::string& actionName)
{
    if (index < 0 || index >= cardCount())
        return;
    const auto removed = *at(activeDeck()->cards, index);
    activeDeck()->cards.erase(at(activeDeck()->cards, index));
    activeDeck()->updatedAt = fake.clock.wallClock;
    cardIndex = std::min(cardIndex, std::max<std::int64_t>(cardCount() - 1, 0));
    scheduleSave();
    registerUndo(actionName, [=](Model& m) { m.insertCard(removed, index, actionName); });
}

void Model::moveCardUp() { moveCard(-1); }

void Model::moveCardDown() { moveCard(1); }

void Model::moveCard(int distance)
{
    const auto to = activeCard() ? cardIndex + distance : -1;
    if (isEditing || to < 0 || to >= cardCount())
        return;
    std::swap(*at(activeDeck()->cards, cardIndex), *at(activeDeck()->cards, to));
    activeDeck()->updatedAt = fake.clock.wallClock;
    cardIndex = to;
    scheduleSave();
    registerUndo(distance < 0 ? "Move Card Up" : "Move Card Down", [=](Model& m) { m.moveCard(-distance); });
}

void Model::createNewDeck(const std::string& name)
{
    keepEdit();
    const auto deckName = trimmed(name).empty() ? "Untitled Deck" : trimmed(name);
    const Card card {
        fake.uuids.makeUuid(), "# " + deckName + "\n\nStart writing here.", fake.clock.wallClock, fake.clock.wallClock};
    insertDeck({fake.uuids.makeUuid(), deckName, {card}, fake.clock.wallClock, fake.clock.wallClock}, std::ssize(decks),
        "New Deck");
}

void Model::insertDeck(const Deck& deck, std::int64_t index, const std::string& actionName)
{
    deckIndex = std::min<std::int64_t>(index, std::ssize(decks));
    decks.insert(at(decks, deckIndex), deck);
    cardIndex = 0;
    scheduleSave();
    registerUndo(actionName, [position = deckIndex, actionName](Model& m) { m.removeDeck(position, actionName); });
}

void Model::deleteActiveDeck()
{
    if (decks.size() < 2)
        return;
    isEditing = false;
    removeDeck(deckIndex, "Delete Deck");
}

void Model::removeDeck(std::int64_t index, const std::string& actionName)
{
    if (decks.size() < 2 || index < 0 || index >= std::ssize(decks))
        return;
    const auto removed = *at(decks, index);
    decks.erase(at(decks, index));
    cardIndex = 0;
    deckIndex = std::min<std::int64_t>(std::ssize(decks) - 1, deckIndex);
    scheduleSave();
    registerUndo(actionName, [=](Model& m) { m.insertDeck(removed, index, actionName); });
}

void Model::renameDeck(const std::string& name)
{
    if (!activeDeck() || trimmed(name).empty())
        return;
    const auto oldName = activeDeck()->name;
    nameActiveDeck(trimmed(name));
    showFeedback("Renamed");
    registerUndo("Rename Deck", [oldName](Model& m) { m.nameActiveDeck(oldName); });
}

void Model::nameActiveDeck(const std::string& name)
{
    if (!activeDeck())
        return;
    activeDeck()->name = name;
    activeDeck()->updatedAt = fake.clock.wallClock;
    scheduleSave();
}

/// The inverse of what is being undone becomes the redo and keeps its name; anything new ends what could be redone.
void Model::registerUndo(const std::string& actionName, const std::function<void(Model&)>& action)
{
    if (undoTarget)
        return undoTarget->push_back({performedName, action});
    undoSteps.push_back({actionName, action});
    redoSteps.clear();
}

void Model::undo() { perform(undoSteps, redoSteps); }

void Model::redo() { perform(redoSteps, undoSteps); }

void Model::perform(std::vector<UndoStep>& from, std::vector<UndoStep>& to)
{
    if (from.empty())
        return;
    const auto step = from.back();
    from.pop_back();
    undoTarget = &to;
    performedName = step.actionName;
    step.action(*this);
    undoTarget = nullptr;
}

} // namespace cuebright::soak
