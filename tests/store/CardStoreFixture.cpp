#include "store/CardStoreFixture.h"

#include "model/StateFile.h"

#include <algorithm>
#include <sstream>
#include <variant>

namespace cuebright::test {

namespace {

std::string inQuotes(const std::optional<std::string>& text) { return text ? "'" + *text + "'" : "none"; }

bool takeStar(std::string& text)
{
    const bool hasStar = text.ends_with('*');
    if (hasStar)
        text.pop_back();
    return hasStar;
}

struct Description {
    AppState state;
    std::optional<std::string> editText;
};

Description parse(std::string_view text, Instant date)
{
    Description result;
    auto& [decks, activeDeckId, activeCardIndex, windowFrame, opacity, fontSize] = result.state;
    for (auto open = text.find('['); open != std::string_view::npos; open = text.find('[')) {
        const auto close = text.find(']');
        std::string name(text.substr(0, open));
        std::istringstream cards(std::string(text.substr(open + 1, close - open - 1)) + (close > open + 1 ? "|" : ""));
        text.remove_prefix(std::min(text.size(), close + 2));

        const int number = static_cast<int>(decks.size() + 1) * 100;
        const bool isActive = takeStar(name);
        Deck deck {FakeUuidSource::nth(number), name, {}, date, date};
        for (std::string content; std::getline(cards, content, '|');) {
            if (takeStar(content) && isActive)
                activeCardIndex = std::ssize(deck.cards);
            const auto id = FakeUuidSource::nth(number + 1 + static_cast<int>(deck.cards.size()));
            deck.cards.push_back({id, content, date, date});
        }
        if (isActive)
            activeDeckId = deck.id;
        decks.push_back(std::move(deck));
    }
    const std::string rest(text);
    if (const auto card = rest.find("card "); card != std::string::npos)
        activeCardIndex = std::stoll(rest.substr(card + 5));
    if (const auto edit = rest.find("editing '"); edit != std::string::npos)
        result.editText = rest.substr(edit + 9, rest.find('\'', edit + 9) - edit - 9);
    return result;
}

/// In the order of `Change::Property`.
std::vector<std::string> valuesOf(const CardStore& store)
{
    std::string decks;
    for (const auto& deck : store.decks()) {
        decks += deck.id.text() + deck.name;
        for (const auto& card : deck.cards)
            decks += card.id.text() + card.content;
    }
    const auto number = [](auto value) { return (std::ostringstream() << value).str(); };
    return {decks, number(store.activeDeckIndex()), number(store.activeCardIndex()), number(store.isEditing()),
        store.editText(), number(static_cast<int>(store.navigationDirection())), store.deckTransitionID().text(),
        number(store.showWordCount()), number(store.speakingPace()), number(store.isDeckSwitch()),
        inQuotes(store.feedbackMessage()), inQuotes(store.persistentError()), number(store.errorDismissed()),
        store.theme(), number(store.fontSize()), number(store.opacity())};
}

} // namespace

std::string describe(const CardStore& store)
{
    std::string text;
    for (const auto& deck : store.decks()) {
        text += (text.empty() ? "" : " ") + deck.name + (&deck == store.activeDeck() ? "*[" : "[");
        for (const auto& card : deck.cards) {
            text += (&card == &deck.cards.front() ? "" : "|") + card.content;
            text += &card == store.activeCard() ? "*" : "";
        }
        text += "]";
    }
    if (!store.activeCard())
        text += " card " + std::to_string(store.activeCardIndex());
    if (store.isEditing())
        text += " editing " + inQuotes(store.editText());
    if (store.feedbackMessage())
        text += " feedback " + inQuotes(store.feedbackMessage());
    if (store.persistentError())
        text += " error " + inQuotes(store.persistentError());
    return text + (store.errorDismissed() ? " dismissed" : "");
}

std::string describe(const UndoManager& undoManager)
{
    return "undo '" + undoManager.undoActionName() + "' redo '" + undoManager.redoActionName() + "'";
}

void CardStoreFixture::open(std::string_view description)
{
    openWithStateFile(stateFileOf(description));
    if (const auto editText = parse(description, kWritten).editText) {
        if (store->activeCardIndex() == -1)
            store->nextCard();
        store->beginEditing();
        store->setEditText(*editText);
        store->loadFromDisk();
    }
    changes.clear();
}

void CardStoreFixture::openWithStateFile(std::optional<std::string> content)
{
    m_subscription.end();
    store.reset();
    undoManager->removeAllActions();
    fake.fileSystem.files.clear();
    if (content)
        stateFile() = *std::move(content);
    fake.fileSystem.writes.clear();
    fake.preferences.writes.clear();
    fake.appearance.choices.clear();
    fake.log.lines.clear();
    store.emplace(fake.platform());
    store->setUndoManager(undoManager);
    changes.clear();
    m_subscription = store->willChange.subscribe([this](const Change& change) { changes.push_back(change); });
}

std::string CardStoreFixture::stateFileOf(std::string_view description)
{
    const auto state = parse(description, kWritten).state;
    return std::get<std::string>(encodeState({state.decks, state.activeDeckId, state.activeCardIndex, 1.0, 17.0}));
}

void CardStoreFixture::perform(const StoreOperation& operation)
{
    const auto before = valuesOf(*store);
    changes.clear();
    operation(*store);
    const auto after = valuesOf(*store);
    for (std::size_t i = 0; i < after.size(); ++i) {
        const auto property = static_cast<Change::Property>(i);
        EXPECT_TRUE(before[i] == after[i] || std::ranges::count(changes, property, &Change::property) > 0)
            << "property " << i << " changed without notification from " << before[i] << " to " << after[i];
    }
}

void CardStoreFixture::expectEffects(const std::vector<Effect>& effects)
{
    for (const auto& effect : effects) {
        SCOPED_TRACE(effect.before + " -> " + effect.after);
        open(effect.before);
        perform(effect.operation);
        EXPECT_EQ(describe(*store), effect.after);
        EXPECT_EQ(describe(*undoManager), "undo '" + effect.undoName + "' redo ''");
        advance(1s);
        EXPECT_EQ(saves(), effect.saves);
    }
}

void CardStoreFixture::expectNothing(const std::vector<std::pair<std::string, StoreOperation>>& cases)
{
    for (const auto& [before, operation] : cases) {
        SCOPED_TRACE(before);
        open(before);
        operation(*store);
        advance(1s);
        EXPECT_EQ(describe(*store), before);
        EXPECT_TRUE(changes.empty());
        EXPECT_EQ(describe(*undoManager), "undo '' redo ''");
        EXPECT_EQ(saves(), 0U);
        store->flushToDisk();
        EXPECT_EQ(stateFile(), stateFileOf(before)); // dates included
    }
}

} // namespace cuebright::test
