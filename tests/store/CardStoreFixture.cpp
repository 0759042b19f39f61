#include "store/CardStoreFixture.h"

#include "model/StateFile.h"

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

std::string withoutAnimations(std::string notices)
{
    for (auto start = notices.find(" ease-"); start != std::string::npos; start = notices.find(" ease-"))
        notices.erase(start, notices.find(';', start) - start);
    return notices;
}

/// The property with the value that it still has.
std::string named(Change::Property property, const CardStore& store)
{
    const auto flag = [](bool isSet) { return isSet ? "true" : "false"; };
    const auto number = [](double value) { return (std::ostringstream() << value).str(); };
    const std::string properties[] = {
        "decks",
        "activeDeckIndex " + std::to_string(store.activeDeckIndex()),
        "activeCardIndex " + std::to_string(store.activeCardIndex()),
        std::string("isEditing ") + flag(store.isEditing()),
        "editText " + inQuotes(store.editText()),
        store.navigationDirection() == NavigationDirection::Forward ? "navigationDirection forward"
                                                                    : "navigationDirection backward",
        "deckTransitionID",
        std::string("showWordCount ") + flag(store.showWordCount()),
        "speakingPace " + std::to_string(store.speakingPace()),
        std::string("isDeckSwitch ") + flag(store.isDeckSwitch()),
        "feedbackMessage " + inQuotes(store.feedbackMessage()),
        "persistentError " + inQuotes(store.persistentError()),
        std::string("errorDismissed ") + flag(store.errorDismissed()),
        "theme " + inQuotes(store.theme()),
        "fontSize " + number(store.fontSize()),
        "opacity " + number(store.opacity()),
    };
    return properties[static_cast<std::size_t>(property)];
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
        store->loadFromDisk(); // an edit stays open even where its card goes
    }
    (void)takeNotices();
}

void CardStoreFixture::openWithStateFile(std::optional<std::string> content)
{
    m_subscription.end();
    store.reset();
    undoManager->removeAllActions();
    surroundings.fileSystem.files.clear();
    if (content)
        stateFile() = *std::move(content);
    surroundings.fileSystem.writes.clear();
    surroundings.preferences.writes.clear();
    surroundings.appearance.choices.clear();
    surroundings.log.lines.clear();
    store.emplace(surroundings.platform());
    store->setUndoManager(undoManager);
    (void)takeNotices();
    m_subscription = store->willChange.subscribe([this](const Change& change) { record(change); });
}

std::string CardStoreFixture::stateFileOf(std::string_view description)
{
    const auto state = parse(description, kWritten).state;
    return std::get<std::string>(encodeState({state.decks, state.activeDeckId, state.activeCardIndex, 1.0, 17.0}));
}

std::string CardStoreFixture::takeNotices() { return std::exchange(m_notices, {}); }

void CardStoreFixture::record(const Change& change)
{
    std::ostringstream notice;
    notice << (m_notices.empty() ? "" : "; ") << named(change.property, *store);
    if (change.animation)
        notice << (change.animation->curve == Animation::Curve::EaseInOut ? " ease-in-out " : " ease-out ")
               << change.animation->duration.count();
    m_notices += notice.str();
}

void CardStoreFixture::expectEffects(const std::vector<Effect>& effects)
{
    for (const bool motionReduced : {false, true}) {
        surroundings.accessibility.motionReduced = motionReduced;
        for (const auto& effect : effects) {
            SCOPED_TRACE(effect.before + " -> " + effect.after + (motionReduced ? ", motion reduced" : ""));
            open(effect.before);
            effect.operation(*store);
            EXPECT_EQ(describe(*store), effect.after);
            EXPECT_EQ(takeNotices(), motionReduced ? withoutAnimations(effect.notices) : effect.notices);
            EXPECT_EQ(describe(*undoManager), "undo '" + effect.undoName + "' redo ''");
            advance(1s);
            EXPECT_EQ(saves(), effect.saves);
        }
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
        EXPECT_EQ(takeNotices(), "");
        EXPECT_EQ(describe(*undoManager), "undo '' redo ''");
        EXPECT_EQ(saves(), 0U);
        store->flushToDisk();
        EXPECT_EQ(stateFile(), stateFileOf(before)); // dates included
    }
}

} // namespace cuebright::test
