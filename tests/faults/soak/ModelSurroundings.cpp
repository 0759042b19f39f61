#include "Model.h"

#include "platform/qt/TextConversion.h"
#include "store/PreferenceKeys.h"

#include <algorithm>
#include <cmath>

namespace cuebright::soak {

/// For the first time or again.
void Model::start()
{
    static_cast<DesktopSession&>(*this) = {};
    fake.preferences.setBoolean(preferenceKeys::kOnboardingDone, true);
    transitionId = fake.uuids.makeUuid();
    load();
}

void Model::load()
{
    const bool isUsable = saved && !saved->decks.empty();
    const auto state = isUsable ? *saved : AppState::makeDefault(fake.clock.wallClock, fake.uuids);
    decks = state.decks;
    const auto active =
        std::find_if(decks.begin(), decks.end(), [&](const Deck& deck) { return deck.id == state.activeDeckId; });
    deckIndex = active == decks.end() ? 0 : active - decks.begin();
    cardIndex = std::min(state.activeCardIndex, std::max<std::int64_t>(cardCount() - 1, 0));
}

void Model::scheduleSave()
{
    saving.cancel();
    saving = later(0.25, [this] { flush(); });
}

void Model::flush()
{
    saving.cancel();
    if (const auto failure = fake.fileSystem.writeFileAtomically("state", {}, FileSystem::Readers::Owner)) {
        fake.log.writeLine(
            "[Cuebright] ERROR: Save failed (" + std::to_string(++saveFailures) + "x): " + failure->description);
        error = "Not saved — check disk space";
        isErrorDismissed = false;
        return;
    }
    saved.emplace();
    saved->decks = decks;
    saved->activeCardIndex = cardIndex;
    if (activeDeck())
        saved->activeDeckId = activeDeck()->id;
    const auto cutToSeconds = [](auto& item) {
        item.createdAt = std::chrono::floor<std::chrono::seconds>(item.createdAt);
        item.updatedAt = std::chrono::floor<std::chrono::seconds>(item.updatedAt);
    };
    for (auto& deck : saved->decks) {
        cutToSeconds(deck);
        std::for_each(deck.cards.begin(), deck.cards.end(), cutToSeconds);
    }
    if (saveFailures == 0)
        return;
    saveFailures = 0;
    error.reset();
    isErrorDismissed = false;
    showFeedback("Saved");
}

void Model::resetAllData()
{
    saved.reset();
    for (const auto key :
        {preferenceKeys::kTheme, preferenceKeys::kFontSize, preferenceKeys::kOpacity, preferenceKeys::kOnboardingDone})
        fake.preferences.remove(key);
    load();
    setTheme("system");
    setFontSize(17);
    setOpacity(1);
    undoSteps.clear();
    redoSteps.clear();
}

void Model::setTheme(const std::string& value)
{
    theme = value;
    fake.preferences.setText("cuebrightTheme", theme);
}

void Model::setFontSize(double value)
{
    fontSize = std::min(std::max(value, 14.0), 28.0);
    fake.preferences.setNumber("cuebrightFontSize", fontSize);
}

void Model::setOpacity(double value)
{
    opacity = std::min(std::max(value, 0.4), 1.0);
    fake.preferences.setNumber("cuebrightOpacity", opacity);
}

void Model::toggleWordCount()
{
    showsWordCount = !showsWordCount;
    fake.preferences.setBoolean("cuebrightWordCount", showsWordCount);
}

PendingTask Model::later(double seconds, const std::function<void()>& work)
{
    return fake.mainQueue.after(Seconds(seconds), [isAlive = std::weak_ptr(life), work] {
        if (!isAlive.expired())
            work();
    });
}

void Model::showFeedback(const std::string& message)
{
    endOfFeedback.cancel();
    feedback = message;
    endOfFeedback = later(2, [this] { feedback.reset(); });
}

void Model::dismissError() { isErrorDismissed = true; }

void Model::showPanel()
{
    if (!isShown)
        editor.hasFocus = true;
    isShown = true;
}

void Model::hidePanel()
{
    isShown = false;
    sheet = Sheet::None;
}

void Model::ask(Sheet question)
{
    showPanel();
    sheet = question;
}

void Model::toggleTimer()
{
    if (isTimerRunning)
        timeBefore += fake.clock.up - startedAt;
    startedAt = fake.clock.up;
    isTimerRunning = !isTimerRunning;
}

/// It moves on once a second.
Seconds Model::shownTime() const
{
    return timeBefore + Seconds(isTimerRunning ? std::floor((fake.clock.up - startedAt).count()) : 0);
}

void EditorModel::open(const QString& opened)
{
    text = opened;
    history = {text};
    hasFocus = true;
    const auto lineFeed = text.indexOf(u'\n', 2);
    const bool isHeading = text.startsWith(QLatin1String("# "));
    select(isHeading ? 2 : 0, isHeading ? static_cast<int>(lineFeed < 0 ? text.size() : lineFeed) : 0);
}

void EditorModel::select(int from, int to)
{
    start = from;
    end = to;
    isSelectionKnown = true;
}

void EditorModel::input(QString typed)
{
    typed.replace(u'\u2029', u'\n');
    text.replace(start, end - start, typed);
    history.push_back(text);
    select(start + static_cast<int>(typed.size()), start + static_cast<int>(typed.size()));
}

void Model::takeTyped() { editText = toUtf8(editor.text); }

void Model::settle()
{
    if (isEditing && editBegins)
        editor.open(toQString(editText));
    if (!editor.hasFocus && editText != toUtf8(editor.text)) { // else not under the user's fingers
        editor.text = toQString(editText);
        editor.history = {editor.text};
        editor.isSelectionKnown = false;
    }
    editBegins = false;
}

} // namespace cuebright::soak
