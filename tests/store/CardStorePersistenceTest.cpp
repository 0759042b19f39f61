#include "store/CardStoreFixture.h"

#include <cstdint>
#include <limits>

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

    constexpr const char* kNotSaved = "Not saved — check disk space";

    TEST_F(CardStorePersistence, AFreshStoreIsAtRest)
    {
        open("Talk*[a*]");
        EXPECT_FALSE(store->isEditing());
        EXPECT_EQ(store->editText(), "");
        EXPECT_EQ(store->navigationDirection(), NavigationDirection::Forward);
        EXPECT_NE(store->deckTransitionId(), Uuid {});
        EXPECT_FALSE(store->isDeckSwitch());
        EXPECT_EQ(store->feedbackMessage(), std::nullopt);
        EXPECT_EQ(store->persistentError(), std::nullopt);
        EXPECT_FALSE(store->errorDismissed());
        EXPECT_EQ(surroundings.mainQueue.pendingCount(), 0U);
    }

    TEST_F(CardStorePersistence, TheStateFileLiesInAFolderOfTheApplicationSupportDirectory)
    {
        openWithoutStateFile();
        EXPECT_EQ(store->appSupportDir(), "/support/Cuebright");
        EXPECT_EQ(store->stateUrl(), "/support/Cuebright/state.json");
        ASSERT_FALSE(surroundings.fileSystem.createdDirectories.empty());
        EXPECT_EQ(std::filesystem::path(surroundings.fileSystem.createdDirectories.back()), store->appSupportDir());
    }

    TEST_F(CardStorePersistence, AFolderThatCannotBeCreatedIsIgnoredAtFirst)
    {
        surroundings.fileSystem.createsNoDirectories = true;
        openWithoutStateFile();
        EXPECT_EQ(store->deckCount(), 3);
        EXPECT_EQ(store->persistentError(), std::nullopt);
        EXPECT_TRUE(surroundings.log.lines.empty());
    }

    TEST_F(CardStorePersistence, WithoutAGoodStateFileTheSampleDecksComeSilently)
    {
        struct Case {
            const char* name;
            std::optional<std::string> content;
            bool readsFail;
        };
        const Case cases[] = {
            { "missing", std::nullopt, false },
            { "unreadable", stateFileOf("Talk*[a]"), true },
            { "empty", "", false },
            { "no JSON", "# Talk", false },
            { "cut short", stateFileOf("Talk*[a]").substr(0, 100), false },
            { "without decks", R"({"activeCardIndex":0,"decks":[],"fontSize":17,"opacity":1})", false },
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
            EXPECT_EQ(deck(2).name, "Q4 Board Update");
            EXPECT_EQ(deck(0).createdAt, surroundings.clock.wallClock);
            advance(10s);
            EXPECT_EQ(saves(), 0U);
            EXPECT_EQ(stateFile(), c.content.value_or(""));
            EXPECT_TRUE(surroundings.log.lines.empty());
            EXPECT_EQ(store->feedbackMessage(), std::nullopt);
            EXPECT_EQ(store->persistentError(), std::nullopt);
        }
    }

    TEST_F(CardStorePersistence, AStateFileThatIsNoGoodIsReplacedByTheNextSave)
    {
        openWithStateFile("# Talk");
        store->flushToDisk();
        const auto saved = stateFile();
        openWithStateFile(saved);
        EXPECT_EQ(store->deckCount(), 3);
        EXPECT_EQ(stateFile(), saved);
    }

    TEST_F(CardStorePersistence, AStoredPositionIsLimitedFromAboveOnly)
    {
        struct Case {
            const char* name;
            const char* decks;
            std::int64_t stored;
            const char* expected;
        };
        const Case cases[] = {
            { "as it is", "Talk*[a|b]", 1, "Talk*[a|b*]" },
            { "past the end", "Talk*[a|b]", 2, "Talk*[a|b*]" },
            { "far past the end", "Talk*[a|b]", std::numeric_limits<std::int64_t>::max(), "Talk*[a|b*]" },
            { "negative", "Talk*[a|b]", -3, "Talk*[a|b] card -3" },
            { "as low as it gets", "Talk*[a]", std::numeric_limits<std::int64_t>::min(),
                "Talk*[a] card -9223372036854775808" },
            { "in a deck without cards", "Talk*[]", 4, "Talk*[] card 0" },
            { "negative in a deck without cards", "Talk*[]", -1, "Talk*[] card -1" },
            { "in the second deck", "Talk[a|b|c] Demo*[d|e]", 2, "Talk[a|b|c] Demo*[d|e*]" },
            { "without an active deck", "Talk[a|b] Demo[d|e|f]", 2, "Talk*[a|b*] Demo[d|e|f]" },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.name);
            open(c.decks, c.stored);
            EXPECT_EQ(describe(*store), c.expected);
        }
    }

    TEST_F(CardStorePersistence, AnActiveDeckThatIsNotThereMeansTheFirstOne)
    {
        auto content = stateFileOf("Talk[a|b] Demo*[c|d|e]", 2);
        const auto id = "\"activeDeckId\" : \"" + FakeUuidSource::nth(200).text();
        ASSERT_NE(content.find(id), std::string::npos);
        content.replace(content.find(id), id.size(), "\"activeDeckId\" : \"" + FakeUuidSource::nth(999).text());
        openWithStateFile(content);
        EXPECT_EQ(describe(*store), "Talk*[a|b*] Demo[c|d|e]");
    }

    TEST_F(CardStorePersistence, OfTwoDecksWithOneIdentifierTheFirstIsActive)
    {
        auto content = stateFileOf("Talk[a] Demo[b] Notes*[c]");
        const auto id = FakeUuidSource::nth(200).text();
        content.replace(content.find(id), id.size(), FakeUuidSource::nth(300).text());
        openWithStateFile(content);
        EXPECT_EQ(describe(*store), "Talk[a] Demo*[b*] Notes[c]");
    }

    TEST_F(CardStorePersistence, LoadingReplacesDecksAndPositionAndNothingElse)
    {
        open("Talk*[a*]");
        store->beginEditing();
        store->setEditText("typed");
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

    TEST_F(CardStorePersistence, ChangesOfCardsAndDecksAreSavedAfterAQuarterOfASecond)
    {
        struct Case {
            const char* name;
            void (*operation)(CardStore&);
            std::size_t saves;
        };
        const Case cases[] = {
            { "switchToDeck", [](CardStore& s) { s.switchToDeck(1); }, 1 },
            { "addCard", [](CardStore& s) { s.addCard(); }, 1 },
            { "deleteCard", [](CardStore& s) { s.deleteCard(); }, 1 },
            { "moveCardUp", [](CardStore& s) { s.moveCardUp(); }, 1 },
            { "moveCardDown", [](CardStore& s) { s.moveCardDown(); }, 1 },
            { "createNewDeck", [](CardStore& s) { s.createNewDeck("x"); }, 1 },
            { "renameDeck", [](CardStore& s) { s.renameDeck("x"); }, 1 },
            { "deleteActiveDeck", [](CardStore& s) { s.deleteActiveDeck(); }, 1 },
            { "beginEditing", [](CardStore& s) { s.beginEditing(); }, 0 },
            { "nextCard", [](CardStore& s) { s.nextCard(); }, 0 },
            { "prevCard", [](CardStore& s) { s.prevCard(); }, 0 },
            { "showFeedback", [](CardStore& s) { s.showFeedback("x"); }, 0 },
            { "setTheme", [](CardStore& s) { s.setTheme("dark"); }, 0 },
            { "setFontSize", [](CardStore& s) { s.setFontSize(20); }, 0 },
            { "setOpacity", [](CardStore& s) { s.setOpacity(0.5); }, 0 },
            { "setSpeakingPace", [](CardStore& s) { s.setSpeakingPace(100); }, 0 },
            { "toggleWordCount", [](CardStore& s) { s.toggleWordCount(); }, 0 },
            { "dismissError", [](CardStore& s) { s.dismissError(); }, 0 },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.name);
            open("Talk*[a|b*|c] Demo[d]");
            c.operation(*store);
            advance(249ms);
            EXPECT_EQ(saves(), 0U);
            advance(2ms);
            EXPECT_EQ(saves(), c.saves);
            advance(10s);
            EXPECT_EQ(saves(), c.saves);
        }
    }

    TEST_F(CardStorePersistence, ABurstOfChangesIsSavedOnceAfterTheLastOne)
    {
        open("Talk*[a*|b|c]");
        store->moveCardDown();
        advance(200ms);
        store->moveCardDown();
        advance(200ms);
        store->switchToDeck(0); // no change, so it postpones nothing
        store->renameDeck("x");
        advance(249ms);
        EXPECT_EQ(saves(), 0U);
        advance(2ms);
        EXPECT_EQ(saves(), 1U);
        EXPECT_EQ(surroundings.fileSystem.writes.back(), kStateFile);
        advance(10s);
        EXPECT_EQ(saves(), 1U);
    }

    TEST_F(CardStorePersistence, FlushToDiskWritesAtOnceAndInsteadOfThePendingSave)
    {
        open("Talk*[a*|b]");
        store->moveCardDown();
        store->flushToDisk();
        EXPECT_EQ(saves(), 1U);
        EXPECT_EQ(surroundings.mainQueue.pendingCount(), 0U);
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
            std::vector<std::string> { "[Cuebright] ERROR: Save failed (1x): No space left on device" });
        EXPECT_EQ(takeNotices(), "");
        EXPECT_EQ(describe(*store), "Talk*[a*]");
        advance(0s);
        EXPECT_EQ(takeNotices(), "persistentError none; errorDismissed false");
        EXPECT_EQ(describe(*store), "Talk*[a*] error 'Not saved — check disk space'");
        advance(1h); // no retry
        EXPECT_EQ(saves(), 1U);
        EXPECT_EQ(store->persistentError(), kNotSaved);
    }

    TEST_F(CardStorePersistence, TheNextSuccessClearsTheErrorAfterTheEventAndSaysSaved)
    {
        open("Talk*[a*]");
        failWrites();
        save();
        save();
        store->dismissError();
        letWritesSucceed();
        (void)takeNotices();
        store->flushToDisk();
        EXPECT_EQ(takeNotices(), "");
        EXPECT_EQ(describe(*store), "Talk*[a*] error 'Not saved — check disk space' dismissed");
        advance(0s);
        EXPECT_EQ(takeNotices(),
            "persistentError 'Not saved — check disk space'; errorDismissed true; feedbackMessage none");
        EXPECT_EQ(describe(*store), "Talk*[a*] feedback 'Saved'");
        EXPECT_EQ(surroundings.log.lines.size(), 2U);
    }

    TEST_F(CardStorePersistence, FailuresAreCountedInARow)
    {
        open("Talk*[a*]");
        failWrites();
        save();
        save();
        letWritesSucceed();
        save();
        failWrites();
        save();
        const std::vector<std::string> expected {
            "[Cuebright] ERROR: Save failed (1x): No space left on device",
            "[Cuebright] ERROR: Save failed (2x): No space left on device",
            "[Cuebright] ERROR: Save failed (1x): No space left on device",
        };
        EXPECT_EQ(surroundings.log.lines, expected);
    }

    TEST_F(CardStorePersistence, OnlyTheFirstSuccessAfterFailuresSaysSaved)
    {
        open("Talk*[a*]");
        save();
        EXPECT_EQ(takeNotices(), "");
        failWrites();
        save();
        letWritesSucceed();
        save();
        advance(3s);
        (void)takeNotices();
        save();
        EXPECT_EQ(takeNotices(), "");
    }

    TEST_F(CardStorePersistence, AStateThatCannotBeWrittenDownIsAFailedSave)
    {
        open("Talk*[a*]");
        surroundings.clock.wallClock = std::chrono::sys_days(std::chrono::year(10000) / 1 / 1);
        store->renameDeck("x");
        save();
        EXPECT_EQ(saves(), 0U);
        ASSERT_EQ(surroundings.log.lines.size(), 1U);
        EXPECT_TRUE(surroundings.log.lines[0].starts_with("[Cuebright] ERROR: Save failed (1x): "));
        EXPECT_EQ(store->persistentError(), kNotSaved);
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

    TEST_F(CardStorePersistence, AStoreThatHasGoneSavesNothing)
    {
        open("Talk*[a|b*] Demo[c]");
        store->moveCardUp();
        store->switchToDeck(1);
        store->showFeedback("Hello");
        failWrites();
        store->flushToDisk(); // its result waits too
        store->renameDeck("x");
        close();
        advance(10s);
        EXPECT_EQ(saves(), 1U);
        EXPECT_EQ(surroundings.log.lines.size(), 1U);
    }

    TEST_F(CardStorePersistence, ResetStartsAgainFromTheSampleDecks)
    {
        open("Talk[a] Demo*[b|c*]");
        store->setTheme("dark");
        store->setFontSize(20);
        store->setOpacity(0.5);
        (void)takeNotices();
        store->resetAllData();
        EXPECT_EQ(store->deckCount(), 3);
        EXPECT_EQ(store->deckName(), "Getting Started");
        EXPECT_EQ(store->positionLabel(), "CARD 01 / 05");
        EXPECT_EQ(takeNotices(),
            "decks; activeDeckIndex 1; activeCardIndex 1; theme 'dark'; fontSize 20; opacity 0.5");
        EXPECT_EQ(surroundings.appearance.choices.back(), Appearance::Choice::FollowSystem);
        EXPECT_EQ(surroundings.fileSystem.files.count(std::string(kStateFile)), 0U);
        advance(10s);
        EXPECT_EQ(saves(), 0U);
    }

    TEST_F(CardStorePersistence, ResetKeepsWordCountAndSpeakingPaceOfThePreferences)
    {
        auto& preferences = surroundings.preferences;
        preferences.setText(preferenceKeys::kTheme, "dark");
        preferences.setNumber(preferenceKeys::kFontSize, 20);
        preferences.setNumber(preferenceKeys::kOpacity, 0.5);
        preferences.setBoolean(preferenceKeys::kWordCount, true);
        preferences.setInteger(preferenceKeys::kSpeakingPace, 100);
        preferences.setNumbers(preferenceKeys::kWindowFrame, { { "x", 1 } });
        preferences.setBoolean(preferenceKeys::kOnboardingDone, true);
        open("Talk*[a*]");
        store->resetAllData();
        const decltype(preferences.values) expected {
            { "cuebrightTheme", "system" },
            { "cuebrightFontSize", 17.0 },
            { "cuebrightOpacity", 1.0 },
            { "cuebrightWordCount", true },
            { "cuebrightSpeakingPace", std::int64_t { 100 } },
        };
        EXPECT_EQ(preferences.values, expected);
        EXPECT_TRUE(store->showWordCount());
        EXPECT_EQ(store->speakingPace(), 100);
    }

    TEST_F(CardStorePersistence, ResetCannotBeUndone)
    {
        open("Talk*[a|b*]");
        store->moveCardUp();
        store->deleteCard();
        undoManager->undo();
        store->resetAllData();
        EXPECT_EQ(describe(*undoManager), "undo '' redo ''");
    }

    TEST_F(CardStorePersistence, ResetLeavesAnOpenEditAsItIs)
    {
        open("Talk*[a*]");
        store->beginEditing();
        store->setEditText("typed");
        store->resetAllData();
        EXPECT_TRUE(store->isEditing());
        EXPECT_EQ(store->editText(), "typed");
        store->saveEdit();
        EXPECT_EQ(card(0).content, "typed");
    }

    TEST_F(CardStorePersistence, ResetWithoutAStateFileOrAnUndoManagerWorksAsWell)
    {
        openWithoutStateFile();
        store->setUndoManager({});
        const auto before = deck(0).id;
        store->resetAllData();
        EXPECT_EQ(store->deckCount(), 3);
        EXPECT_NE(deck(0).id, before);
    }

} // namespace

} // namespace cuebright::test
