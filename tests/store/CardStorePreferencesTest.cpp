#include "store/CardStoreFixture.h"

#include <cstdint>
#include <limits>

namespace cuebright::test {

namespace {

    using Values = std::map<std::string, FakePreferences::Value, std::less<>>;
    using Choice = Appearance::Choice;

    class CardStorePreferences : public CardStoreFixture {
    protected:
        /// A store at its start-up values, on preferences that hold nothing.
        void openAfresh()
        {
            surroundings.preferences.values.clear();
            open("Talk*[a*]");
        }
    };

    TEST_F(CardStorePreferences, StartUpTakesStoredValuesAsTheyAre)
    {
        struct Case {
            const char* name;
            Values stored;
            const char* theme;
            double fontSize;
            double opacity;
            bool showWordCount;
            std::int64_t speakingPace;
        };
        const Case cases[] = {
            { "nothing", {}, "system", 17, 1, false, 130 },
            { "ordinary",
                { { "cuebrightTheme", "dark" }, { "cuebrightFontSize", 20.0 }, { "cuebrightOpacity", 0.5 },
                    { "cuebrightWordCount", true }, { "cuebrightSpeakingPace", std::int64_t { 100 } } },
                "dark", 20, 0.5, true, 100 },
            { "above the ranges",
                { { "cuebrightTheme", "Pink" }, { "cuebrightFontSize", 400.0 }, { "cuebrightOpacity", 3.0 },
                    { "cuebrightSpeakingPace", std::int64_t { 9999 } } },
                "Pink", 400, 3, false, 9999 },
            { "below the ranges",
                { { "cuebrightTheme", "" }, { "cuebrightFontSize", 0.5 }, { "cuebrightOpacity", 0.01 },
                    { "cuebrightSpeakingPace", std::int64_t { 1 } } },
                "", 0.5, 0.01, false, 1 },
            { "zero",
                { { "cuebrightFontSize", 0.0 }, { "cuebrightOpacity", 0.0 },
                    { "cuebrightSpeakingPace", std::int64_t { 0 } } },
                "system", 17, 1, false, 130 },
            { "negative",
                { { "cuebrightFontSize", -20.0 }, { "cuebrightOpacity", -0.5 },
                    { "cuebrightSpeakingPace", std::int64_t { -100 } } },
                "system", 17, 1, false, 130 },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.name);
            surroundings.preferences.values = c.stored;
            open("Talk*[a*]");
            EXPECT_EQ(store->theme(), c.theme);
            EXPECT_EQ(store->fontSize(), c.fontSize);
            EXPECT_EQ(store->opacity(), c.opacity);
            EXPECT_EQ(store->showWordCount(), c.showWordCount);
            EXPECT_EQ(store->speakingPace(), c.speakingPace);
            EXPECT_TRUE(surroundings.preferences.writes.empty());
        }
    }

    TEST_F(CardStorePreferences, TheThemeChoosesTheLookOfTheApplication)
    {
        struct Case {
            const char* theme;
            Choice choice;
        };
        const Case cases[] = {
            { "system", Choice::FollowSystem },
            { "light", Choice::Light },
            { "dark", Choice::Dark },
            { "Dark", Choice::FollowSystem },
            { "dark ", Choice::FollowSystem },
            { "", Choice::FollowSystem },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.theme);
            openAfresh();
            store->setTheme(c.theme);
            EXPECT_EQ(store->theme(), c.theme);
            EXPECT_EQ(surroundings.appearance.choices, (std::vector { Choice::FollowSystem, c.choice }));
            EXPECT_EQ(surroundings.preferences.values, (Values { { "cuebrightTheme", c.theme } }));

            open("Talk*[a*]"); // at the next start it is applied again
            EXPECT_EQ(surroundings.appearance.choices, std::vector { c.choice });
        }
    }

    TEST_F(CardStorePreferences, SettersLimitAndStoreAtOnce)
    {
        struct Case {
            const char* name;
            void (*change)(CardStore&);
            const char* notice;
            Values stored;
        };
        const Case cases[] = {
            { "text size", [](CardStore& s) { s.setFontSize(20.5); }, "fontSize 17", { { "cuebrightFontSize", 20.5 } } },
            { "text size too large", [](CardStore& s) { s.setFontSize(40); }, "fontSize 17",
                { { "cuebrightFontSize", 28.0 } } },
            { "text size too small", [](CardStore& s) { s.setFontSize(-1); }, "fontSize 17",
                { { "cuebrightFontSize", 14.0 } } },
            { "text size as it was", [](CardStore& s) { s.setFontSize(17); }, "fontSize 17",
                { { "cuebrightFontSize", 17.0 } } },
            { "larger text", [](CardStore& s) { s.increaseFontSize(); }, "fontSize 17", { { "cuebrightFontSize", 18.0 } } },
            { "smaller text", [](CardStore& s) { s.decreaseFontSize(); }, "fontSize 17", { { "cuebrightFontSize", 16.0 } } },
            { "normal text", [](CardStore& s) { s.resetFontSize(); }, "fontSize 17", { { "cuebrightFontSize", 17.0 } } },
            { "opacity", [](CardStore& s) { s.setOpacity(0.75); }, "opacity 1", { { "cuebrightOpacity", 0.75 } } },
            { "opacity too high", [](CardStore& s) { s.setOpacity(2); }, "opacity 1", { { "cuebrightOpacity", 1.0 } } },
            { "opacity too low", [](CardStore& s) { s.setOpacity(0.2); }, "opacity 1", { { "cuebrightOpacity", 0.4 } } },
            { "more opacity", [](CardStore& s) { s.increaseOpacity(); }, "opacity 1", { { "cuebrightOpacity", 1.0 } } },
            { "less opacity", [](CardStore& s) { s.decreaseOpacity(); }, "opacity 1", { { "cuebrightOpacity", 0.9 } } },
            { "pace", [](CardStore& s) { s.setSpeakingPace(100); }, "speakingPace 130",
                { { "cuebrightSpeakingPace", std::int64_t { 100 } } } },
            { "pace too slow", [](CardStore& s) { s.setSpeakingPace(50); }, "speakingPace 130",
                { { "cuebrightSpeakingPace", std::int64_t { 80 } } } },
            { "pace too fast", [](CardStore& s) { s.setSpeakingPace(300); }, "speakingPace 130",
                { { "cuebrightSpeakingPace", std::int64_t { 250 } } } },
            { "word count", [](CardStore& s) { s.toggleWordCount(); }, "showWordCount false",
                { { "cuebrightWordCount", true } } },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.name);
            openAfresh();
            std::size_t writesAtNotice = 99;
            const auto subscription = store->willChange.subscribe(
                [&](const Change&) { writesAtNotice = surroundings.preferences.writes.size(); });
            c.change(*store);
            EXPECT_EQ(takeNotices(), c.notice);
            EXPECT_EQ(writesAtNotice, 0U);
            EXPECT_EQ(surroundings.preferences.values, c.stored);

            const auto before = std::tuple(
                store->fontSize(), store->opacity(), store->speakingPace(), store->showWordCount());
            open("Talk*[a*]"); // the store held the limited value too
            EXPECT_EQ(before,
                std::tuple(store->fontSize(), store->opacity(), store->speakingPace(), store->showWordCount()));
        }
    }

    TEST_F(CardStorePreferences, StepsOfTheTextSizeEndAtTheLimits)
    {
        struct Case {
            double stored;
            double increased;
            double decreased;
        };
        const Case cases[] = {
            { 28, 28, 27 }, { 27.5, 28, 26.5 }, { 14, 15, 14 }, { 14.5, 15.5, 14 }, { 400, 28, 28 }, { 2, 14, 14 },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.stored);
            surroundings.preferences.values = { { "cuebrightFontSize", c.stored } };
            open("Talk*[a*]");
            store->increaseFontSize();
            EXPECT_EQ(store->fontSize(), c.increased);
            surroundings.preferences.values = { { "cuebrightFontSize", c.stored } };
            open("Talk*[a*]");
            store->decreaseFontSize();
            EXPECT_EQ(store->fontSize(), c.decreased);
            store->resetFontSize();
            EXPECT_EQ(store->fontSize(), 17);
        }
    }

    TEST_F(CardStorePreferences, StepsOfTheOpacityAreNotRounded)
    {
        openAfresh();
        for (const double expected :
            { 0.9, 0.8, 0.7000000000000001, 0.6000000000000001, 0.5000000000000001, 0.40000000000000013, 0.4, 0.4 }) {
            store->decreaseOpacity();
            EXPECT_EQ(store->opacity(), expected);
        }
        for (const double expected : { 0.5, 0.6, 0.7, 0.7999999999999999, 0.8999999999999999, 0.9999999999999999, 1.0, 1.0 }) {
            store->increaseOpacity();
            EXPECT_EQ(store->opacity(), expected);
        }
    }

    TEST_F(CardStorePreferences, TheWordCountFlagGoesBackAndForth)
    {
        openAfresh();
        store->toggleWordCount();
        store->toggleWordCount();
        EXPECT_FALSE(store->showWordCount());
        EXPECT_EQ(surroundings.preferences.values, (Values { { "cuebrightWordCount", false } }));
    }

    TEST_F(CardStorePreferences, WordsAreWhatStandsBetweenWhiteSpace)
    {
        struct Case {
            const char* name;
            const char* content;
            std::int64_t words;
        };
        const Case cases[] = {
            { "empty", "", 0 },
            { "only white space", " \n\t ", 0 },
            { "Markdown counts", "# Opening\n- three quick points", 6 },
            { "emphasis and numbers", "1. **very bold** `x`", 4 },
            { "white space in rows", "  one \n\n  two  ", 2 },
            { "every line break", "a\nb\vc\fd\re\r\nf\u0085g\u2028h\u2029i", 9 },
            { "wide spaces", "a\u00a0b\u2003c\u3000d", 4 },
            { "zero width space is none", "a\u200bb", 1 },
            { "no cut within letters of several bytes", "ą\u0105\u4f60\u597d", 1 },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(c.name);
            open("Talk*[" + std::string(c.content) + "*]");
            EXPECT_EQ(store->wordCount(), c.words);
        }
    }

    TEST_F(CardStorePreferences, TheReadingTimeIsRoundedUpToWholeMinutes)
    {
        struct Case {
            int words;
            std::int64_t pace;
            const char* readingTime;
        };
        constexpr auto kHighest = std::numeric_limits<std::int64_t>::max(); // 9223372036854775807
        const Case cases[] = {
            { 0, 130, "~1 min" },
            { 1, 130, "~1 min" },
            { 130, 130, "~1 min" },
            { 131, 130, "~2 min" },
            { 261, 130, "~3 min" },
            { 7, 1, "~7 min" },
            { 0, kHighest, "~1 min" },
            { 5, kHighest, "~1 min" },
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(std::to_string(c.words) + " words at " + std::to_string(c.pace));
            surroundings.preferences.setInteger(preferenceKeys::kSpeakingPace, c.pace);
            std::string content;
            for (int i = 0; i < c.words; ++i)
                content += "x ";
            open("Talk*[" + content + "*]");
            EXPECT_EQ(store->readingTime(), c.readingTime);
        }
    }

    TEST_F(CardStorePreferences, CountsFollowTheOpenEdit)
    {
        surroundings.preferences.setInteger(preferenceKeys::kSpeakingPace, 1);
        open("Talk*[one*|one two]");
        store->beginEditing();
        store->setEditText("one two three");
        EXPECT_EQ(store->wordCount(), 3);
        EXPECT_EQ(store->readingTime(), "~3 min");
        store->cancelEdit();
        EXPECT_EQ(store->wordCount(), 1);
        EXPECT_EQ(saves(), 0U);
        store->nextCard();
        EXPECT_EQ(store->wordCount(), 2);
    }

    TEST_F(CardStorePreferences, WithoutAnActiveCardThereAreNoWords)
    {
        open("Talk*[one two]", -1);
        EXPECT_EQ(store->wordCount(), 0);
        EXPECT_EQ(store->readingTime(), "~1 min");
    }

} // namespace

} // namespace cuebright::test
