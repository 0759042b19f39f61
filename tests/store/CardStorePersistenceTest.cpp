#include "store/CardStoreFixture.h"
#include "store/PreferenceKeys.h"

namespace cuebright::test {

namespace {

class CardStorePersistence : public CardStoreFixture {
protected:
    std::optional<std::string>& writeError = fake.fileSystem.writeError;
};

TEST_F(CardStorePersistence, TheStateFileLiesInAFolderOfItsOwnThatIsMadeAtOnce)
{
    fake.fileSystem.createsNoDirectories = true; // noticed only by the next save
    openWithStateFile(std::nullopt);
    EXPECT_EQ(store->stateURL(), "/support/Cuebright/state.json");
    EXPECT_EQ(fake.fileSystem.createdDirectories, std::vector<std::string> {"/support/Cuebright"});
    EXPECT_TRUE(fake.log.lines.empty());
    EXPECT_EQ(store->persistentError(), std::nullopt);
}

TEST_F(CardStorePersistence, WithoutAnApplicationSupportDirectoryTheProgramStops)
{
    fake.fileSystem.supportDirectory.reset();
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
        fake.fileSystem.readsFail = c.readsFail;
        openWithStateFile(c.content);
        EXPECT_EQ(store->deckCount(), 3);
        EXPECT_EQ(store->deckName() + ": " + store->positionLabel(), "Getting Started: CARD 01 / 05");
        EXPECT_EQ(deck(0).createdAt, fake.clock.wallClock);
        advance(10s);
        EXPECT_EQ(saves(), 0U);
        EXPECT_EQ(stateFile(), c.content.value_or(""));
        EXPECT_TRUE(fake.log.lines.empty());
        EXPECT_FALSE(store->feedbackMessage() || store->persistentError());
    }
}

TEST_F(CardStorePersistence, AStoredPositionIsLimitedFromAboveOnly)
{
    const std::pair<const char*, const char*> cases[] = {
        {"Talk*[a|b] card 2", "Talk*[a|b*]"}, {"Talk*[a] card 9223372036854775807", "Talk*[a*]"},
        {"Talk*[a] card -9223372036854775808", "Talk*[a] card -9223372036854775808"},
        {"Talk*[] card 4", "Talk*[] card 0"},
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
    json.replace(json.rfind(idOf(300)), Uuid::kTextLength, idOf(200)); // duplicate identifiers
    openWithStateFile(json);
    EXPECT_EQ(describe(*store), "Talk[a|b] Demo*[c|d|e*] Notes[f]");
}

TEST_F(CardStorePersistence, LoadingReplacesDecksAndPositionAndNothingElse)
{
    open("Talk*[a*] editing 'typed'");
    stateFile() = stateFileOf("Talk[a] Demo*[b|c*]");
    perform(&CardStore::loadFromDisk);
    EXPECT_EQ(describe(*store), "Talk[a] Demo*[b|c*] editing 'typed'");
    advance(1s);
    EXPECT_EQ(saves(), 0U);
}

TEST_F(CardStorePersistence, TheStateFileHoldsDecksPositionAndPreferencesButNoFrame)
{
    fake.preferences.setNumber(preferenceKeys::kFontSize, 18.5);
    fake.preferences.setNumber(preferenceKeys::kOpacity, 0.85);
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
    store->moveCardDown(); // no change, no delay
    advance(49ms);
    EXPECT_EQ(saves(), 0U);
    advance(2ms);
    EXPECT_EQ(fake.fileSystem.writes, std::vector {std::string(kStateFile)});
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
    const std::string log = "[Cuebright] ERROR: Save failed (";
    const StoreOperation nothing = [](CardStore&) {};
    const StoreOperation dismiss = &CardStore::dismissError;
    const struct {
        StoreOperation before;
        std::optional<std::string> writeError;
        std::vector<std::string> log;
        std::string after;
    } steps[] = {
        {nothing, "No space left", {log + "1x): No space left"}, failed},
        {dismiss, "Disk full", {log + "2x): Disk full"}, failed}, // shown again after the next failure
        {dismiss, {}, {}, "Talk*[a*] feedback 'Saved'"},
        {nothing, {}, {}, "Talk*[a*] feedback 'Saved'"}, // feedback only once
    };
    open("Talk*[a*]");
    for (const auto& step : steps) {
        fake.log.lines.clear();
        step.before(*store);
        writeError = step.writeError;
        changes.clear();
        store->flushToDisk();
        EXPECT_EQ(fake.log.lines, step.log);
        EXPECT_TRUE(changes.empty());
        perform([this](CardStore&) { advance(500ms); });
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
    store->flushToDisk(); // the result is posted
    store->renameDeck("x");
    store.reset();
    undoManager->undo();
    advance(10s);
    EXPECT_EQ(saves(), 1U);
    EXPECT_EQ(fake.log.lines.size(), 1U);
}

TEST_F(CardStorePersistence, ResetBringsTheSampleDecksAndKeepsEditWordCountAndPace)
{
    auto& values = fake.preferences.values;
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
    perform(&CardStore::resetAllData);
    EXPECT_EQ(store->deckName() + ": " + store->positionLabel(), "Getting Started: CARD 01 / 05");
    EXPECT_TRUE(store->isEditing());
    EXPECT_EQ(store->editText(), "c");
    EXPECT_EQ(fake.appearance.choices.back(), Appearance::Choice::FollowSystem);
    EXPECT_EQ(describe(*undoManager), "undo '' redo ''");
    const FakePreferences::Values expected {{"cuebrightTheme", "system"}, {"cuebrightFontSize", 17.0},
        {"cuebrightOpacity", 1.0}, {"cuebrightWordCount", true}, {"cuebrightSpeakingPace", std::int64_t {100}}};
    EXPECT_EQ(values, expected);
    EXPECT_TRUE(store->showWordCount());
    EXPECT_EQ(store->speakingPace(), 100);
    advance(10s);
    EXPECT_EQ(saves(), writes);
    EXPECT_TRUE(fake.fileSystem.files.empty());
    const auto first = deck(0).id;
    store->resetAllData(); // no file to delete this time
    EXPECT_NE(deck(0).id, first);
}

} // namespace

} // namespace cuebright::test
