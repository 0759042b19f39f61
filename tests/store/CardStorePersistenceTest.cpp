#include "store/CardStoreFixture.h"
#include "store/PreferenceKeys.h"

namespace cuebright::test {

namespace {

class CardStorePersistence : public CardStoreFixture {
protected:
    std::optional<std::string>& writeError = surroundings.fileSystem.writeError;
};

TEST_F(CardStorePersistence, TheStateFileLiesInAFolderOfItsOwnThatIsMadeAtOnce)
{
    surroundings.fileSystem.createsNoDirectories = true; // shows only when saving
    openWithStateFile(std::nullopt);
    EXPECT_EQ(store->stateURL(), "/support/Cuebright/state.json");
    EXPECT_EQ(surroundings.fileSystem.createdDirectories, std::vector<std::string> {"/support/Cuebright"});
    EXPECT_TRUE(surroundings.log.lines.empty());
    EXPECT_EQ(store->persistentError(), std::nullopt);
}

TEST_F(CardStorePersistence, WithoutAnApplicationSupportDirectoryTheProgramStops)
{
    surroundings.fileSystem.supportDirectory.reset();
    EXPECT_DEATH(openWithStateFile(std::nullopt), "");
}

TEST_F(CardStorePersistence, WithoutAGoodStateFileTheSampleDecksComeSilently)
{
    const struct {
        const char* name;
        std::optional<std::string> content;
        bool readsFail = false;
    } cases[] = {
        {"missing", std::nullopt},
        {"unreadable", stateFileOf("Talk*[a]"), true},
        {"cut short", stateFileOf("Talk*[a]").substr(0, 100)},
        {"without decks", R"({"activeCardIndex":0,"decks":[],"fontSize":17,"opacity":1})"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        surroundings.fileSystem.readsFail = c.readsFail;
        openWithStateFile(c.content);
        EXPECT_EQ(store->deckCount(), 3);
        EXPECT_EQ(store->deckName() + ": " + store->positionLabel(), "Getting Started: CARD 01 / 05");
        EXPECT_EQ(deck(0).createdAt, surroundings.clock.wallClock);
        advance(10s);
        EXPECT_EQ(saves(), 0U);
        EXPECT_EQ(stateFile(), c.content.value_or(""));
        EXPECT_TRUE(surroundings.log.lines.empty());
        EXPECT_FALSE(store->feedbackMessage() || store->persistentError());
    }
}

TEST_F(CardStorePersistence, AStoredPositionIsLimitedFromAboveOnly)
{
    const std::pair<const char*, const char*> cases[] = {
        {"Talk*[a|b] card 2", "Talk*[a|b*]"}, {"Talk*[a] card 9223372036854775807", "Talk*[a*]"},
        {"Talk*[a] card -9223372036854775808", "Talk*[a] card -9223372036854775808"},
        {"Talk*[] card 4", "Talk*[] card 0"}, {"Talk*[] card -1", "Talk*[] card -1"},
        {"Talk[a|b|c] Demo*[d|e] card 2", "Talk[a|b|c] Demo*[d|e*]"},
        {"Talk[a|b] Demo[d|e|f] card 2", "Talk*[a|b*] Demo[d|e|f]"}, // no active deck stored
    };
    for (const auto& [stored, loaded] : cases) {
        open(stored);
        EXPECT_EQ(describe(*store), loaded);
    }
}

TEST_F(CardStorePersistence, TheActiveDeckIsTheFirstWithTheStoredIdentifierElseTheFirstOfAll)
{
    const auto idOf = [](int number) { return FakeUuidSource::nth(number).text(); };
    auto json = stateFileOf("Talk[a|b] Demo*[c|d|e] Notes[f] card 2");
    json.replace(json.find(idOf(200)), Uuid::kTextLength, idOf(999));
    openWithStateFile(json);
    EXPECT_EQ(describe(*store), "Talk*[a|b*] Demo[c|d|e] Notes[f]");

    json.replace(json.find(idOf(999)), Uuid::kTextLength, idOf(200));
    json.replace(json.rfind(idOf(300)), Uuid::kTextLength, idOf(200)); // twins
    openWithStateFile(json);
    EXPECT_EQ(describe(*store), "Talk[a|b] Demo*[c|d|e*] Notes[f]");
}

TEST_F(CardStorePersistence, LoadingReplacesDecksAndPositionAndNothingElse)
{
    open("Talk*[a*] editing 'typed'");
    stateFile() = stateFileOf("Talk[a] Demo*[b|c*]");
    store->loadFromDisk();
    EXPECT_EQ(describe(*store), "Talk[a] Demo*[b|c*] editing 'typed'");
    EXPECT_EQ(takeNotices(), "decks; activeDeckIndex 0; activeCardIndex 0");
    advance(1s);
    EXPECT_EQ(saves(), 0U);
}

TEST_F(CardStorePersistence, TheStateFileHoldsDecksPositionAndPreferencesButNoFrame)
{
    surroundings.preferences.setNumber(preferenceKeys::kFontSize, 18.5);
    surroundings.preferences.setNumber(preferenceKeys::kOpacity, 0.85);
    const auto withLooks = [](const char* looks) {
        auto json = stateFileOf("Talk[a] Demo*[b|c|d*]");
        return json.replace(json.find("\"fontSize\""), std::string::npos, looks);
    };
    openWithStateFile(withLooks("\"fontSize\":99,\"opacity\":0.3,\"windowFrame\":[[100,200],[420,300]]}"));
    EXPECT_EQ(store->fontSize(), 18.5);
    EXPECT_EQ(store->opacity(), 0.85);
    store->flushToDisk();
    EXPECT_EQ(stateFile(), withLooks("\"fontSize\" : 18.5,\n  \"opacity\" : 0.85\n}"));
    store->prevCard();
    EXPECT_EQ(stateFile().find("\"activeCardIndex\" : 1"), std::string::npos);
    store->flushToDisk();
    EXPECT_NE(stateFile().find("\"activeCardIndex\" : 1"), std::string::npos);
}

TEST_F(CardStorePersistence, ABurstOfChangesIsSavedOnceAQuarterOfASecondAfterTheLastOrWhenFlushed)
{
    open("Talk*[a*|b|c]");
    store->moveCardDown();
    advance(200ms);
    store->moveCardDown();
    advance(200ms);
    store->moveCardDown(); // no change, so it postpones nothing
    advance(49ms);
    EXPECT_EQ(saves(), 0U);
    advance(2ms);
    EXPECT_EQ(surroundings.fileSystem.writes, std::vector {std::string(kStateFile)});
    store->renameDeck("x");
    store->flushToDisk();
    EXPECT_EQ(saves(), 2U);
    advance(10s);
    EXPECT_EQ(saves(), 2U) << "the pending save is done";
    store->flushToDisk();
    EXPECT_EQ(saves(), 3U) << "without a change too";
}

TEST_F(CardStorePersistence, AFailedSaveIsLoggedAtOnceAndShownAfterTheEventUntilOneSucceeds)
{
    const std::string failed = "Talk*[a*] error 'Not saved — check disk space'";
    const std::string shown = "persistentError 'Not saved — check disk space'; errorDismissed true";
    const std::string log = "[Cuebright] ERROR: Save failed (";
    const StoreOperation nothing = [](CardStore&) {};
    const StoreOperation dismiss = &CardStore::dismissError;
    const StoreOperation renameTooLate = [this](CardStore& s) {
        surroundings.clock.wallClock = std::chrono::sys_days(std::chrono::year(10000) / 1 / 1);
        s.renameDeck("Talk");
    };
    const struct {
        StoreOperation before;
        std::optional<std::string> writeError;
        std::vector<std::string> log;
        std::string notices;
        std::string after;
    } steps[] = {
        {nothing, "No space left", {log + "1x): No space left"}, "persistentError none; errorDismissed false", failed},
        {dismiss, "Disk full", {log + "2x): Disk full"}, shown, failed}, // it comes back with the next failure
        {dismiss, {}, {}, shown + "; feedbackMessage none", "Talk*[a*] feedback 'Saved'"},
        {nothing, {}, {}, "", "Talk*[a*] feedback 'Saved'"}, // said once
        {renameTooLate, {}, {log + "1x): a date lies outside the years 0 to 9999"},
            "persistentError none; errorDismissed false",
            "Talk*[a*] feedback 'Renamed'" + failed.substr(9)}, // a date that the format cannot hold
    };
    open("Talk*[a*]");
    for (const auto& step : steps) {
        surroundings.log.lines.clear();
        step.before(*store);
        (void)takeNotices();
        writeError = step.writeError;
        store->flushToDisk();
        EXPECT_EQ(surroundings.log.lines, step.log);
        EXPECT_EQ(takeNotices(), "");
        advance(500ms);
        EXPECT_EQ(takeNotices(), step.notices);
        EXPECT_EQ(describe(*store), step.after);
    }
    advance(1h);
    EXPECT_EQ(saves(), 4U) << "no retry";
}

TEST_F(CardStorePersistence, WorkThatWaitsForAStoreThatHasGoneDoesNothing)
{
    open("Talk*[a|b*] Demo[c]");
    store->moveCardUp();
    store->switchToDeck(1);
    store->showFeedback("Hello");
    writeError = "No space left";
    store->flushToDisk(); // its result waits too
    store->renameDeck("x");
    store.reset();
    undoManager->undo();
    advance(10s);
    EXPECT_EQ(saves(), 1U);
    EXPECT_EQ(surroundings.log.lines.size(), 1U);
}

TEST_F(CardStorePersistence, ResetStartsAgainFromTheSampleDecksForGoodAndLeavesAnOpenEditWordCountAndPace)
{
    auto& values = surroundings.preferences.values;
    values = {{"cuebrightTheme", "dark"}, {"cuebrightFontSize", 20.0}, {"cuebrightOpacity", 0.5},
        {"cuebrightWordCount", true}, {"cuebrightSpeakingPace", std::int64_t {100}},
        {"cuebrightWindowFrame", Preferences::Numbers {{"x", 1}}}, {"cuebrightOnboardingDone", true}};
    open("Talk[a] Demo*[b|c*]");
    store->renameDeck("x");
    store->moveCardUp();
    undoManager->undo();
    store->beginEditing();
    advance(3s);
    const auto writes = saves();
    (void)takeNotices();
    store->resetAllData();
    EXPECT_EQ(store->deckName() + ": " + store->positionLabel(), "Getting Started: CARD 01 / 05");
    EXPECT_TRUE(store->isEditing());
    EXPECT_EQ(store->editText(), "c");
    EXPECT_EQ(takeNotices(), "decks; activeDeckIndex 1; activeCardIndex 1; theme 'dark'; fontSize 20; opacity 0.5");
    EXPECT_EQ(surroundings.appearance.choices.back(), Appearance::Choice::FollowSystem);
    EXPECT_EQ(describe(*undoManager), "undo '' redo ''");
    const FakePreferences::Values expected {{"cuebrightTheme", "system"}, {"cuebrightFontSize", 17.0},
        {"cuebrightOpacity", 1.0}, {"cuebrightWordCount", true}, {"cuebrightSpeakingPace", std::int64_t {100}}};
    EXPECT_EQ(values, expected);
    EXPECT_TRUE(store->showWordCount());
    EXPECT_EQ(store->speakingPace(), 100);
    advance(10s);
    EXPECT_EQ(saves(), writes);
    EXPECT_TRUE(surroundings.fileSystem.files.empty());
    const auto first = deck(0).id;
    store->resetAllData(); // no file to delete this time
    EXPECT_NE(deck(0).id, first);
}

} // namespace

} // namespace cuebright::test
