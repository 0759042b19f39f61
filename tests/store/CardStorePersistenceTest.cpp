#include "store/CardStoreFixture.h"

namespace cuebright::test {

namespace {

class CardStorePersistence : public CardStoreFixture {
protected:
    void failWrites() { surroundings.fileSystem.writeError = "No space left on device"; }
    void letWritesSucceed() { surroundings.fileSystem.writeError.reset(); }
    /// One save with everything that it posts.
    void save()
    {
        store->flushToDisk();
        advance(0s);
    }
};

TEST_F(CardStorePersistence, AFreshStoreIsAtRest)
{
    open("Talk*[a*]");
    EXPECT_EQ(store->editText(), "");
    EXPECT_EQ(store->navigationDirection(), NavigationDirection::Forward);
    EXPECT_NE(store->deckTransitionId(), Uuid {});
    EXPECT_FALSE(store->isDeckSwitch());
    EXPECT_EQ(describe(*store), "Talk*[a*]");
    EXPECT_EQ(surroundings.mainQueue.pendingCount(), 0U);
}

TEST_F(CardStorePersistence, TheStateFileLiesInAFolderOfItsOwnThatIsMadeAtOnce)
{
    surroundings.fileSystem.createsNoDirectories = true; // shows only when saving
    openWithoutStateFile();
    EXPECT_EQ(store->appSupportDir(), "/support/Cuebright");
    EXPECT_EQ(store->stateUrl(), "/support/Cuebright/state.json");
    EXPECT_EQ(surroundings.fileSystem.createdDirectories, std::vector<std::string> {"/support/Cuebright"});
    EXPECT_TRUE(surroundings.log.lines.empty());
    EXPECT_EQ(store->persistentError(), std::nullopt);
}

TEST_F(CardStorePersistence, WithoutAnApplicationSupportDirectoryTheProgramStops)
{
    surroundings.fileSystem.supportDirectory.reset();
    EXPECT_DEATH(openWithoutStateFile(), "");
}

TEST_F(CardStorePersistence, WithoutAGoodStateFileTheSampleDecksComeSilently)
{
    struct Case {
        const char* name;
        std::optional<std::string> content;
        bool readsFail;
    };
    const Case cases[] = {
        {"missing", std::nullopt, false},
        {"unreadable", stateFileOf("Talk*[a]"), true},
        {"no JSON", "# Talk", false},
        {"cut short", stateFileOf("Talk*[a]").substr(0, 100), false},
        {"without decks", R"({"activeCardIndex":0,"decks":[],"fontSize":17,"opacity":1})", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        surroundings.fileSystem.readsFail = c.readsFail;
        if (c.content)
            openWithStateFile(*c.content);
        else
            openWithoutStateFile();
        ASSERT_EQ(store->deckCount(), 3);
        EXPECT_EQ(store->deckName(), "Getting Started");
        EXPECT_EQ(store->positionLabel(), "CARD 01 / 05");
        EXPECT_EQ(deck(0).createdAt, surroundings.clock.wallClock);
        advance(10s);
        EXPECT_EQ(saves(), 0U);
        EXPECT_EQ(stateFile(), c.content.value_or(""));
        EXPECT_TRUE(surroundings.log.lines.empty());
        EXPECT_EQ(store->feedbackMessage(), std::nullopt);
        EXPECT_EQ(store->persistentError(), std::nullopt);
    }
}

TEST_F(CardStorePersistence, AStoredPositionIsLimitedFromAboveOnly)
{
    struct Case {
        const char* stored;
        const char* loaded;
    };
    const Case cases[] = {
        {"Talk*[a|b] card 1", "Talk*[a|b*]"}, {"Talk*[a|b] card 2", "Talk*[a|b*]"},
        {"Talk*[a|b] card 9223372036854775807", "Talk*[a|b*]"}, {"Talk*[a|b] card -3", "Talk*[a|b] card -3"},
        {"Talk*[a] card -9223372036854775808", "Talk*[a] card -9223372036854775808"},
        {"Talk*[] card 4", "Talk*[] card 0"}, {"Talk*[] card -1", "Talk*[] card -1"},
        {"Talk[a|b|c] Demo*[d|e] card 2", "Talk[a|b|c] Demo*[d|e*]"},
        {"Talk[a|b] Demo[d|e|f] card 2", "Talk*[a|b*] Demo[d|e|f]"}, // no active deck stored
    };
    for (const auto& c : cases) {
        open(c.stored);
        EXPECT_EQ(describe(*store), c.loaded);
    }
}

TEST_F(CardStorePersistence, TheActiveDeckIsTheFirstWithTheStoredIdentifierElseTheFirstOfAll)
{
    const auto withActiveDeck = [&](int n) {
        auto content = stateFileOf("Talk[a|b] Demo*[c|d|e] Notes[f] card 2");
        const auto id = FakeUuidSource::nth(200).text();
        return content.replace(content.find(id), id.size(), FakeUuidSource::nth(n).text());
    };
    openWithStateFile(withActiveDeck(999));
    EXPECT_EQ(describe(*store), "Talk*[a|b*] Demo[c|d|e] Notes[f]");

    auto twins = withActiveDeck(100);
    const auto last = twins.rfind(FakeUuidSource::nth(300).text());
    openWithStateFile(twins.replace(last, Uuid::kTextLength, FakeUuidSource::nth(100).text()));
    EXPECT_EQ(describe(*store), "Talk*[a|b*] Demo[c|d|e] Notes[f]");
}

TEST_F(CardStorePersistence, LoadingReplacesDecksAndPositionAndNothingElse)
{
    open("Talk*[a*] editing 'typed'");
    store->setFontSize(20);
    store->setOpacity(0.5);
    surroundings.fileSystem.files[std::string(kStateFile)] = stateFileOf("Talk[a] Demo*[b|c*]");
    (void)takeNotices();
    store->loadFromDisk();
    EXPECT_EQ(describe(*store), "Talk[a] Demo*[b|c*] editing 'typed'");
    EXPECT_EQ(takeNotices(), "decks; activeDeckIndex 0; activeCardIndex 0");
    EXPECT_EQ(store->fontSize(), 20);
    EXPECT_EQ(store->opacity(), 0.5);
    advance(1s);
    EXPECT_EQ(saves(), 0U);
}

TEST_F(CardStorePersistence, TheStateFileHoldsDecksPositionAndPreferencesButNoFrame)
{
    surroundings.preferences.setNumber(preferenceKeys::kFontSize, 18.5);
    surroundings.preferences.setNumber(preferenceKeys::kOpacity, 0.85);
    openWithStateFile(R"({"windowFrame":[[100,200],[420,300]],"opacity":0.3,"fontSize":99,"activeCardIndex":-2,
        "unknown":null,"decks":[{"id":"6b0f5c1e-3d0a-4e8b-9d55-2f7a1c9e4b21","name":"Q&A \"1/2\"",
        "createdAt":"2026-11-16T01:21:19Z","updatedAt":"2026-11-17T01:21:19Z","cards":[{
        "id":"0C8E6A52-9B1F-4C7D-8E2A-5D3B7F1A6C90","content":"# One\n\n- a/b → \u00e9",
        "createdAt":"2026-11-16T01:21:20Z","updatedAt":"2026-11-16T01:21:21Z"}]}]})");
    EXPECT_EQ(store->fontSize(), 18.5);
    EXPECT_EQ(store->opacity(), 0.85);
    store->flushToDisk();
    EXPECT_EQ(stateFile(), R"({
  "activeCardIndex" : -2,
  "activeDeckId" : "6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4B21",
  "decks" : [
    {
      "cards" : [
        {
          "content" : "# One\n\n- a\/b → é",
          "createdAt" : "2026-11-16T01:21:20Z",
          "id" : "0C8E6A52-9B1F-4C7D-8E2A-5D3B7F1A6C90",
          "updatedAt" : "2026-11-16T01:21:21Z"
        }
      ],
      "createdAt" : "2026-11-16T01:21:19Z",
      "id" : "6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4B21",
      "name" : "Q&A \"1\/2\"",
      "updatedAt" : "2026-11-17T01:21:19Z"
    }
  ],
  "fontSize" : 18.5,
  "opacity" : 0.85
})");
}

TEST_F(CardStorePersistence, ABurstOfChangesIsSavedOnceAQuarterOfASecondAfterTheLast)
{
    open("Talk*[a*|b|c]");
    store->moveCardDown();
    advance(200ms);
    store->moveCardDown();
    advance(200ms);
    store->renameDeck("x");
    store->moveCardDown(); // no change, so it postpones nothing
    advance(249ms);
    EXPECT_EQ(saves(), 0U);
    advance(2ms);
    EXPECT_EQ(surroundings.fileSystem.writes, std::vector {std::string(kStateFile)});
    advance(10s);
    EXPECT_EQ(saves(), 1U);
}

TEST_F(CardStorePersistence, FlushToDiskWritesAtOnceAndInsteadOfThePendingSave)
{
    open("Talk*[a*|b]");
    store->moveCardDown();
    store->flushToDisk();
    EXPECT_EQ(saves(), 1U);
    advance(1s);
    EXPECT_EQ(saves(), 1U);
    store->flushToDisk();
    EXPECT_EQ(saves(), 2U);
}

TEST_F(CardStorePersistence, AFailedSaveIsLoggedAtOnceAndShownAfterTheEvent)
{
    open("Talk*[a*]");
    failWrites();
    store->flushToDisk();
    EXPECT_EQ(surroundings.log.lines,
        std::vector<std::string> {"[Cuebright] ERROR: Save failed (1x): No space left on device"});
    EXPECT_EQ(takeNotices(), "");
    EXPECT_EQ(describe(*store), "Talk*[a*]");
    advance(1h); // no retry either
    EXPECT_EQ(takeNotices(), "persistentError none; errorDismissed false");
    EXPECT_EQ(describe(*store), "Talk*[a*] error 'Not saved — check disk space'");
    EXPECT_EQ(saves(), 1U);
}

TEST_F(CardStorePersistence, ADismissedErrorComesBackWithTheNextFailure)
{
    open("Talk*[a*]");
    failWrites();
    save();
    store->dismissError();
    EXPECT_EQ(describe(*store), "Talk*[a*] error 'Not saved — check disk space' dismissed");
    save();
    EXPECT_EQ(describe(*store), "Talk*[a*] error 'Not saved — check disk space'");
}

TEST_F(CardStorePersistence, TheNextSuccessClearsTheErrorAfterTheEventAndSaysSavedOnce)
{
    open("Talk*[a*]");
    failWrites();
    save();
    store->dismissError();
    letWritesSucceed();
    (void)takeNotices();
    store->flushToDisk();
    EXPECT_EQ(takeNotices(), "");
    advance(0s);
    EXPECT_EQ(
        takeNotices(), "persistentError 'Not saved — check disk space'; errorDismissed true; feedbackMessage none");
    EXPECT_EQ(describe(*store), "Talk*[a*] feedback 'Saved'");
    save();
    EXPECT_EQ(takeNotices(), "");
}

TEST_F(CardStorePersistence, FailuresAreCountedInARow)
{
    open("Talk*[a*]");
    failWrites();
    save();
    save();
    letWritesSucceed();
    save();
    surroundings.clock.wallClock = std::chrono::sys_days(std::chrono::year(10000) / 1 / 1);
    store->renameDeck("x"); // a date that the format cannot hold
    save();
    const auto& lines = surroundings.log.lines;
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0], "[Cuebright] ERROR: Save failed (1x): No space left on device");
    EXPECT_EQ(lines[1], "[Cuebright] ERROR: Save failed (2x): No space left on device");
    EXPECT_TRUE(lines[2].starts_with("[Cuebright] ERROR: Save failed (1x): ")) << lines[2];
    EXPECT_EQ(saves(), 3U);
}

TEST_F(CardStorePersistence, WorkThatWaitsForAStoreThatHasGoneDoesNothing)
{
    open("Talk*[a|b*] Demo[c]");
    store->moveCardUp();
    store->switchToDeck(1);
    store->showFeedback("Hello");
    failWrites();
    store->flushToDisk(); // its result waits too
    store->renameDeck("x");
    store.reset();
    undoManager->undo();
    advance(10s);
    EXPECT_EQ(saves(), 1U);
    EXPECT_EQ(surroundings.log.lines.size(), 1U);
}

TEST_F(CardStorePersistence, ResetStartsAgainFromTheSampleDecksForGood)
{
    open("Talk[a] Demo*[b|c*] editing 'typed'");
    store->setTheme("dark");
    store->setFontSize(20);
    store->setOpacity(0.5);
    store->renameDeck("x");
    store->createNewDeck("Notes");
    undoManager->undo();
    advance(3s);
    const auto writes = saves();
    (void)takeNotices();
    store->resetAllData();
    EXPECT_EQ(store->deckName(), "Getting Started");
    EXPECT_EQ(store->positionLabel(), "CARD 01 / 05");
    EXPECT_EQ(takeNotices(), "decks; activeDeckIndex 1; activeCardIndex 0; theme 'dark'; fontSize 20; opacity 0.5");
    EXPECT_EQ(surroundings.appearance.choices.back(), Appearance::Choice::FollowSystem);
    EXPECT_EQ(describe(*undoManager), "undo '' redo ''");
    advance(10s);
    EXPECT_EQ(saves(), writes);
    EXPECT_TRUE(surroundings.fileSystem.files.empty());
    const auto first = deck(0).id;
    store->resetAllData(); // no file to delete this time
    EXPECT_NE(deck(0).id, first);
}

TEST_F(CardStorePersistence, ResetLeavesAnOpenEditAsItIs)
{
    open("Talk*[a*] editing 'typed'");
    store->resetAllData();
    EXPECT_TRUE(store->isEditing());
    EXPECT_EQ(store->editText(), "typed");
}

TEST_F(CardStorePersistence, ResetKeepsWordCountAndSpeakingPace)
{
    auto& preferences = surroundings.preferences;
    preferences.setText(preferenceKeys::kTheme, "dark");
    preferences.setNumber(preferenceKeys::kFontSize, 20);
    preferences.setNumber(preferenceKeys::kOpacity, 0.5);
    preferences.setBoolean(preferenceKeys::kWordCount, true);
    preferences.setInteger(preferenceKeys::kSpeakingPace, 100);
    preferences.setNumbers(preferenceKeys::kWindowFrame, {{"x", 1}});
    preferences.setBoolean(preferenceKeys::kOnboardingDone, true);
    open("Talk*[a*]");
    store->resetAllData();
    const decltype(preferences.values) expected {
        {"cuebrightTheme", "system"},
        {"cuebrightFontSize", 17.0},
        {"cuebrightOpacity", 1.0},
        {"cuebrightWordCount", true},
        {"cuebrightSpeakingPace", std::int64_t {100}},
    };
    EXPECT_EQ(preferences.values, expected);
    EXPECT_TRUE(store->showWordCount());
    EXPECT_EQ(store->speakingPace(), 100);
}

} // namespace

} // namespace cuebright::test
