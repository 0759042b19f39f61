#include "store/CardStoreFixture.h"

#include "model/StateFile.h"

#include <sstream>
#include <utility>
#include <variant>

namespace cuebright::test {

namespace {

    std::string quoted(const std::optional<std::string>& text) { return text ? "'" + *text + "'" : "none"; }

    bool takeStar(std::string& text)
    {
        const bool hasStar = text.ends_with('*');
        if (hasStar)
            text.pop_back();
        return hasStar;
    }

    struct State {
        std::vector<Deck> decks;
        std::optional<Uuid> activeDeckId;
        std::int64_t activeCardIndex = 0;
    };

    /// Gives the n-th deck the number n00 and its cards n01, n02, …, counted from 1.
    State parse(std::string_view text, Instant date)
    {
        State state;
        while (!text.empty()) {
            const auto open = text.find('[');
            const auto close = text.find(']');
            std::string name(text.substr(0, open));
            std::string cards(text.substr(open + 1, close - open - 1));
            text.remove_prefix(std::min(text.size(), close + 2));

            const int number = static_cast<int>(state.decks.size() + 1) * 100;
            const bool isActive = takeStar(name);
            Deck deck { FakeUuidSource::nth(number), name, {}, date, date };
            std::istringstream pieces(cards + "|");
            for (std::string content; !cards.empty() && std::getline(pieces, content, '|');) {
                if (takeStar(content) && isActive)
                    state.activeCardIndex = static_cast<std::int64_t>(deck.cards.size());
                const int cardNumber = number + 1 + static_cast<int>(deck.cards.size());
                deck.cards.push_back({ FakeUuidSource::nth(cardNumber), content, date, date });
            }
            if (isActive)
                state.activeDeckId = deck.id;
            state.decks.push_back(std::move(deck));
        }
        return state;
    }

    std::string nameAndValue(Change::Property property, const CardStore& store)
    {
        std::ostringstream out;
        out << std::boolalpha;
        switch (property) {
        case Change::Property::Decks:
            out << "decks";
            break;
        case Change::Property::ActiveDeckIndex:
            out << "activeDeckIndex " << store.activeDeckIndex();
            break;
        case Change::Property::ActiveCardIndex:
            out << "activeCardIndex " << store.activeCardIndex();
            break;
        case Change::Property::IsEditing:
            out << "isEditing " << store.isEditing();
            break;
        case Change::Property::EditText:
            out << "editText '" << store.editText() << "'";
            break;
        case Change::Property::NavigationDirection:
            out << "navigationDirection "
                << (store.navigationDirection() == NavigationDirection::Forward ? "forward" : "backward");
            break;
        case Change::Property::DeckTransitionId:
            out << "deckTransitionId";
            break;
        case Change::Property::ShowWordCount:
            out << "showWordCount " << store.showWordCount();
            break;
        case Change::Property::SpeakingPace:
            out << "speakingPace " << store.speakingPace();
            break;
        case Change::Property::IsDeckSwitch:
            out << "isDeckSwitch " << store.isDeckSwitch();
            break;
        case Change::Property::FeedbackMessage:
            out << "feedbackMessage " << quoted(store.feedbackMessage());
            break;
        case Change::Property::PersistentError:
            out << "persistentError " << quoted(store.persistentError());
            break;
        case Change::Property::ErrorDismissed:
            out << "errorDismissed " << store.errorDismissed();
            break;
        case Change::Property::Theme:
            out << "theme '" << store.theme() << "'";
            break;
        case Change::Property::FontSize:
            out << "fontSize " << store.fontSize();
            break;
        case Change::Property::Opacity:
            out << "opacity " << store.opacity();
            break;
        }
        return out.str();
    }

} // namespace

std::string describe(const CardStore& store)
{
    std::string text;
    for (const auto& deck : store.decks()) {
        const bool isActive = &deck == store.activeDeck();
        text += (text.empty() ? "" : " ") + deck.name + (isActive ? "*[" : "[");
        for (std::size_t i = 0; i < deck.cards.size(); ++i) {
            const bool isActiveCard = &deck.cards[i] == store.activeCard();
            text += (i == 0 ? "" : "|") + deck.cards[i].content + (isActiveCard ? "*" : "");
        }
        text += "]";
    }
    if (!store.activeCard())
        text += " card " + std::to_string(store.activeCardIndex());
    if (store.isEditing())
        text += " editing '" + store.editText() + "'";
    if (store.feedbackMessage())
        text += " feedback " + quoted(store.feedbackMessage());
    if (store.persistentError())
        text += " error " + quoted(store.persistentError());
    if (store.errorDismissed())
        text += " dismissed";
    return text;
}

std::string describe(const UndoManager& undoManager)
{
    return "undo '" + undoManager.undoActionName() + "' redo '" + undoManager.redoActionName() + "'";
}

void CardStoreFixture::open(std::string_view decks, std::optional<std::int64_t> storedCardIndex)
{
    openWithStateFile(stateFileOf(decks, storedCardIndex));
}

void CardStoreFixture::openWithStateFile(std::string content)
{
    close();
    surroundings.fileSystem.files[std::string(kStateFile)] = std::move(content);
    observe();
}

void CardStoreFixture::openWithoutStateFile()
{
    close();
    surroundings.fileSystem.files.clear();
    observe();
}

void CardStoreFixture::close()
{
    m_subscription.end();
    store.reset();
    undoManager->removeAllActions();
}

std::string CardStoreFixture::stateFileOf(std::string_view decks, std::optional<std::int64_t> storedCardIndex)
{
    const auto state = parse(decks, kWritten);
    const auto cardIndex = storedCardIndex.value_or(state.activeCardIndex);
    return std::get<std::string>(encodeState({ state.decks, state.activeDeckId, cardIndex, 1.0, 17.0 }));
}

std::string CardStoreFixture::takeNotices()
{
    std::string text;
    for (const auto& notice : std::exchange(m_notices, {}))
        text += (text.empty() ? "" : "; ") + notice;
    m_lastChange.reset();
    return text;
}

void CardStoreFixture::observe()
{
    surroundings.fileSystem.writes.clear();
    surroundings.preferences.writes.clear();
    surroundings.appearance.choices.clear();
    surroundings.log.lines.clear();
    m_notices.clear();
    m_lastChange.reset();
    store.emplace(surroundings.platform());
    store->setUndoManager(undoManager);
    m_subscription = store->willChange.subscribe([this](const Change& change) { record(change); });
}

void CardStoreFixture::record(const Change& change)
{
    if (std::exchange(m_lastChange, change) == change)
        return;
    std::ostringstream notice;
    notice << nameAndValue(change.property, *store);
    if (change.animation)
        notice << (change.animation->curve == Animation::Curve::EaseInOut ? " ease-in-out " : " ease-out ")
               << change.animation->duration.count();
    m_notices.push_back(notice.str());
}

} // namespace cuebright::test
