#include "Rules.h"

#include "markdown/CardParser.h"
#include "platform/qt/TextConversion.h"
#include "ui/card/CardArea.h"
#include "ui/panel/DeckPicker.h"

#include <algorithm>
#include <set>

namespace cuebright::soak {

namespace {

bool isInRange(const CardStore& store)
{
    const auto deck = store.activeDeckIndex();
    // A file may hold a negative card index, which stays.
    return deck >= 0 && deck < store.deckCount()
        && store.activeCardIndex() < std::max<std::int64_t>(store.cardCount(), 1);
}

bool hasUniqueIds(const CardStore& store)
{
    std::set<Uuid> ids;
    const auto isNew = [&](const auto& item) { return ids.insert(item.id).second; };
    return std::ranges::all_of(
        store.decks(), [&](const Deck& deck) { return isNew(deck) && std::ranges::all_of(deck.cards, isNew); });
}

bool showsCard(Program& program)
{
    const auto& store = program.store();
    const auto layout = program.panel().findChild<CardArea*>()->cardLayout();
    const auto card = store.activeCard();
    return card ? layout && layout->blocks() == parseMarkdown(card->content) : !layout;
}

bool showsPosition(Program& program)
{
    const auto& store = program.store();
    const auto position = QStringLiteral("Card %1 of %2").arg(store.activeCardIndex() + 1).arg(store.cardCount());
    const auto widgets = program.panel().findChildren<QWidget*>();
    return program.panel().findChild<DeckPicker*>()->accessibleName()
        == QStringLiteral("Active deck: ") + toQString(store.deckName())
        && std::ranges::find(widgets, position, &QWidget::accessibleName) != widgets.end();
}

bool offersUndo(Program& program)
{
    const auto& actions = program.panel().actions();
    const auto undo = std::ranges::find_if(actions, [](auto action) { return action->text().startsWith(u"Undo"); });
    const auto name = toQString(program.undoManager().undoActionName());
    return (*undo)->isEnabled() == program.undoManager().canUndo()
        && (*undo)->text() == (QStringLiteral("Undo ") + name).trimmed();
}

} // namespace

Texts::Texts(const CardStore& store)
    : editText(store.editText())
{
    for (const auto& deck : store.decks()) {
        for (const auto& card : deck.cards)
            cards.emplace(card.id, card.content);
    }
    if (store.isEditing() && store.activeCard())
        editedCard = store.activeCard()->id;
}

std::string contentOf(const CardStore& store)
{
    std::string content;
    for (const auto& deck : store.decks()) {
        content += "deck " + deck.id.text() + ' ' + deck.name + '\n';
        for (const auto& card : deck.cards)
            content += card.id.text() + ' ' + card.content + '\n';
    }
    return content;
}

std::string brokenRule(Program& program)
{
    const auto& store = program.store();
    if (!isInRange(store))
        return "the position is in range";
    if (!hasUniqueIds(store))
        return "identifiers are unique";
    if (!program.panel().isVisible())
        return {};
    if (!showsPosition(program))
        return "the panel shows the store's position and deck";
    if (store.isEditing() != (program.editor() != nullptr))
        return "the editor is visible during an edit";
    if (store.isEditing() && toUtf8(program.editor()->text()) != store.editText())
        return "the editor shows the store's text";
    if (!store.isEditing() && !showsCard(program))
        return "the panel shows the active card";
    if (!store.isEditing() && !program.sheet() && !offersUndo(program))
        return "the menu offers what can be undone";
    return {};
}

std::string lostText(const Texts& before, const Texts& after, Loss allowed)
{
    if (allowed == Loss::Anything)
        return {};
    int gone = 0;
    for (const auto& [id, text] : before.cards) {
        const auto now = after.cards.find(id);
        if (now == after.cards.end()) {
            ++gone;
            continue;
        }
        const bool isEditClosed = before.editedCard == id && after.editedCard != id;
        if (now->second != (isEditClosed && allowed == Loss::Nothing ? before.editText : text))
            return "the text of card " + id.text();
    }
    if ((gone > 0 && allowed < Loss::OneCard) || (gone > 1 && allowed == Loss::OneCard))
        return "cards";
    return after.cards.size() + static_cast<std::size_t>(gone) > before.cards.size() + 1 ? "nothing, but cards came up"
                                                                                         : "";
}

} // namespace cuebright::soak
