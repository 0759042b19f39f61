#include "store/CardStoreFixture.h"

namespace cuebright::test {

namespace {

    class CardStoreEditing : public CardStoreFixture {
    protected:
        /// Leaves an edit open while no card is active.
        void openEditWithoutCard()
        {
            open("Talk*[a*|b]");
            store->beginEditing();
            store->setEditText("typed");
            surroundings.fileSystem.files[std::string(kStateFile)] = stateFileOf("Talk*[a|b]", -1);
            store->loadFromDisk();
            (void)takeNotices();
        }
    };

    TEST_F(CardStoreEditing, BeginEditingOpensTheActiveCardsText)
    {
        open("Talk*[a|b*]");
        store->beginEditing();
        EXPECT_EQ(describe(*store), "Talk*[a|b*] editing 'b'");
        EXPECT_EQ(takeNotices(), "editText ''; isEditing false ease-in-out 0.14");
    }

    TEST_F(CardStoreEditing, BlankCardsOpenWithAHeadingPrefix)
    {
        struct Case {
            const char* name;
            const char* content;
            const char* editText;
        };
        const Case cases[] = {
            { "empty", "", "# " },
            { "spaces and line breaks", "  \n\t\r\n ", "# " },
            { "white space beyond ASCII", "\u00a0\u2003\u3000\u2028\u2029\u0085", "# " },
            { "one letter among white space", " \nx\n", " \nx\n" },
            { "zero width space, which is no white space", "\u200b", "\u200b" },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.name);
            open("Talk*[" + std::string(c.content) + "*]");
            store->beginEditing();
            EXPECT_EQ(store->editText(), c.editText);
            EXPECT_EQ(card(0).content, c.content);
        }
    }

    TEST_F(CardStoreEditing, AnEditEndsInTheCardOrNowhere)
    {
        struct Case {
            const char* name;
            const char* content;
            std::optional<const char*> typed;
            const char* afterSave;
            const char* afterCancel;
        };
        const Case cases[] = {
            { "changed", "Hello", "Hello!", "Talk*[Hello!*] feedback 'Saved'", "Talk*[Hello*] feedback 'Discarded'" },
            { "unchanged", "Hello", std::nullopt, "Talk*[Hello*]", "Talk*[Hello*]" },
            { "typed anew as it was", "Hello", "Hello", "Talk*[Hello*]", "Talk*[Hello*]" },
            { "cleared", "Hello", "", "Talk*[*] feedback 'Saved'", "Talk*[Hello*] feedback 'Discarded'" },
            { "space at the end", "Hello", "Hello \n\n", "Talk*[Hello \n\n*] feedback 'Saved'",
                "Talk*[Hello*] feedback 'Discarded'" },
            { "another spelling of the same letter", "\u00e9", "e\u0301", "Talk*[e\u0301*] feedback 'Saved'",
                "Talk*[\u00e9*] feedback 'Discarded'" },
            { "blank card as it opened", " ", std::nullopt, "Talk*[# *] feedback 'Saved'",
                "Talk*[ *] feedback 'Discarded'" },
            { "blank card back to blank", " ", " ", "Talk*[ *]", "Talk*[ *]" },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.name);
            const auto openEdit = [&] {
                open("Talk*[" + std::string(c.content) + "*]");
                store->beginEditing();
                if (c.typed)
                    store->setEditText(*c.typed);
            };
            openEdit();
            store->saveEdit();
            EXPECT_EQ(describe(*store), c.afterSave);
            openEdit();
            store->cancelEdit();
            EXPECT_EQ(describe(*store), c.afterCancel);
            EXPECT_EQ(store->editText(), c.content);
        }
    }

    TEST_F(CardStoreEditing, AComparedTextIsThatOfTheExactBytesEditingStartedFrom)
    {
        open("Talk*[a*]");
        store->beginEditing();
        store->setEditText("b");
        store->saveEdit();
        advance(3s);
        store->beginEditing();
        store->setEditText("a");
        store->saveEdit();
        EXPECT_EQ(describe(*store), "Talk*[a*] feedback 'Saved'");
    }

    TEST_F(CardStoreEditing, SaveEditDatesTheCardAndThenTheDeckEvenWhenNothingChanged)
    {
        open("Talk*[a|b*]");
        store->beginEditing();
        (void)takeNotices();
        surroundings.clock.stepPerRead = 1s;
        const auto now = surroundings.clock.wallClock;
        store->saveEdit();
        EXPECT_EQ(card(1).updatedAt, now);
        EXPECT_EQ(deck(0).updatedAt, now + 1s);
        EXPECT_EQ(card(1).createdAt, kWritten);
        EXPECT_EQ(card(0).updatedAt, kWritten);
        EXPECT_EQ(takeNotices(), "decks; isEditing true ease-in-out 0.14");
        advance(250ms);
        EXPECT_EQ(saves(), 1U);
    }

    TEST_F(CardStoreEditing, SaveEditReportsAfterTheEditorIsClosed)
    {
        open("Talk*[a*]");
        store->beginEditing();
        store->setEditText("b");
        (void)takeNotices();
        store->saveEdit();
        EXPECT_EQ(takeNotices(), "decks; isEditing true ease-in-out 0.14; feedbackMessage none");
        EXPECT_EQ(store->editText(), "b");
        EXPECT_EQ(describe(*undoManager), "undo '' redo ''");
    }

    TEST_F(CardStoreEditing, CancelEditTouchesNoDateAndSavesNothing)
    {
        open("Talk*[a*]");
        store->beginEditing();
        store->setEditText("b");
        (void)takeNotices();
        store->cancelEdit();
        EXPECT_EQ(takeNotices(), "editText 'b'; isEditing true ease-in-out 0.14; feedbackMessage none");
        advance(1s);
        EXPECT_EQ(saves(), 0U);
        EXPECT_EQ(card(0).updatedAt, kWritten);
        EXPECT_EQ(deck(0).updatedAt, kWritten);
    }

    TEST_F(CardStoreEditing, TypingChangesNothingButTheWorkingCopy)
    {
        open("Talk*[a*]");
        store->beginEditing();
        (void)takeNotices();
        store->setEditText("b");
        advance(1s);
        EXPECT_EQ(describe(*store), "Talk*[a*] editing 'b'");
        EXPECT_EQ(takeNotices(), "editText 'a'");
        EXPECT_EQ(saves(), 0U);
    }

    TEST_F(CardStoreEditing, ASecondBeginEditingKeepsWhatWasTyped)
    {
        open("Talk*[a*]");
        store->beginEditing();
        store->setEditText("typed");
        (void)takeNotices();
        store->beginEditing();
        EXPECT_EQ(takeNotices(), "");
        store->cancelEdit();
        EXPECT_EQ(describe(*store), "Talk*[a*] feedback 'Discarded'");
        EXPECT_EQ(store->editText(), "a");
    }

    TEST_F(CardStoreEditing, WithoutAnOpenEditSavingAndCancellingDoNothing)
    {
        open("Talk*[a*]");
        store->saveEdit();
        store->cancelEdit();
        advance(1s);
        EXPECT_EQ(takeNotices(), "");
        EXPECT_EQ(saves(), 0U);
        EXPECT_EQ(card(0).updatedAt, kWritten);
    }

    TEST_F(CardStoreEditing, WithoutAnActiveCardNothingOpens)
    {
        for (const char* decks : { "Talk*[a]", "Talk*[]" }) {
            SCOPED_TRACE(decks);
            open(decks, -1);
            store->beginEditing();
            EXPECT_FALSE(store->isEditing());
            EXPECT_EQ(takeNotices(), "");
        }
    }

    TEST_F(CardStoreEditing, AnEditWhoseCardHasGoneStaysOpenWhenSaved)
    {
        openEditWithoutCard();
        store->saveEdit();
        advance(1s);
        EXPECT_EQ(describe(*store), "Talk*[a|b] card -1 editing 'typed'");
        EXPECT_EQ(takeNotices(), "");
        EXPECT_EQ(saves(), 0U);
    }

    TEST_F(CardStoreEditing, AnEditWhoseCardHasGoneCanBeCancelled)
    {
        openEditWithoutCard();
        store->cancelEdit();
        EXPECT_EQ(describe(*store), "Talk*[a|b] card -1 feedback 'Discarded'");
    }

    TEST_F(CardStoreEditing, WithReducedMotionTheEditorOpensAndClosesAtOnce)
    {
        surroundings.accessibility.motionReduced = true;
        open("Talk*[a*]");
        store->beginEditing();
        EXPECT_EQ(takeNotices(), "editText ''; isEditing false");
        store->saveEdit();
        EXPECT_EQ(takeNotices(), "decks; isEditing true");
        store->beginEditing();
        (void)takeNotices();
        store->cancelEdit();
        EXPECT_EQ(takeNotices(), "editText 'a'; isEditing true");
    }

    TEST_F(CardStoreEditing, ANoticeGoesOutBeforeTheValueIsStored)
    {
        open("Talk*[a*]");
        store->beginEditing();
        store->setEditText("b");
        std::string seen;
        const auto subscription = store->willChange.subscribe([&](const Change& change) {
            if (change.property == Change::Property::Decks && seen.empty())
                seen = describe(*store);
        });
        store->saveEdit();
        EXPECT_EQ(seen, "Talk*[a*] editing 'b'");
    }

} // namespace

} // namespace cuebright::test
