#include "store/CardStoreFixture.h"

#include <limits>
#include <tuple>

namespace cuebright::test {

namespace {

using Values = FakePreferences::Values;

class CardStorePreferences : public CardStoreFixture {
protected:
    void openWith(Values stored)
    {
        surroundings.preferences.values = std::move(stored);
        open("Talk*[a*]");
    }
    [[nodiscard]] auto all() const
    {
        return std::tuple(
            store->theme(), store->fontSize(), store->opacity(), store->showWordCount(), store->speakingPace());
    }
};

TEST_F(CardStorePreferences, StartUpTakesStoredValuesAsTheyAre)
{
    const std::pair<Values, std::tuple<std::string, double, double, bool, std::int64_t>> cases[] = {
        {{}, {"system", 17, 1, false, 130}},
        {{{"cuebrightTheme", "dark"}, {"cuebrightFontSize", 20.0}, {"cuebrightOpacity", 0.5},
             {"cuebrightWordCount", true}, {"cuebrightSpeakingPace", std::int64_t {100}}},
            {"dark", 20, 0.5, true, 100}},
        {{{"cuebrightTheme", "Pink"}, {"cuebrightFontSize", 400.0}, {"cuebrightOpacity", 3.0},
             {"cuebrightSpeakingPace", std::int64_t {9999}}},
            {"Pink", 400, 3, false, 9999}},
        {{{"cuebrightFontSize", 0.5}, {"cuebrightOpacity", 0.01}, {"cuebrightSpeakingPace", std::int64_t {1}}},
            {"system", 0.5, 0.01, false, 1}},
        {{{"cuebrightFontSize", 0.0}, {"cuebrightOpacity", -0.5}, {"cuebrightSpeakingPace", std::int64_t {0}}},
            {"system", 17, 1, false, 130}},
    };
    for (const auto& [stored, expected] : cases) {
        openWith(stored);
        EXPECT_EQ(all(), expected);
        EXPECT_TRUE(surroundings.preferences.writes.empty());
    }
}

TEST_F(CardStorePreferences, TheThemeChoosesTheLookOfTheApplicationNowAndAtTheNextStart)
{
    using enum Appearance::Choice;
    const std::pair<const char*, Appearance::Choice> cases[] = {
        {"system", FollowSystem}, {"light", Light}, {"dark", Dark}, {"Dark", FollowSystem}, {"", FollowSystem}};
    for (const auto& [theme, choice] : cases) {
        SCOPED_TRACE(theme);
        openWith({});
        store->setTheme(theme);
        EXPECT_EQ(surroundings.appearance.choices, (std::vector {FollowSystem, choice}));
        EXPECT_EQ(surroundings.preferences.values, (Values {{"cuebrightTheme", theme}}));
        openWith(surroundings.preferences.values);
        EXPECT_EQ(surroundings.appearance.choices, std::vector {choice});
    }
}

TEST_F(CardStorePreferences, SettersTellThenLimitAndStoreAtOnce)
{
    const auto fontSize = [](double value) { return [value](CardStore& s) { s.setFontSize(value); }; };
    const auto opacity = [](double value) { return [value](CardStore& s) { s.setOpacity(value); }; };
    const auto pace = [](std::int64_t value) { return [value](CardStore& s) { s.setSpeakingPace(value); }; };
    const auto paceOf = [](std::int64_t value) { return Values {{"cuebrightSpeakingPace", value}}; };
    const auto toggleTwice = [](CardStore& s) { (s.toggleWordCount(), s.toggleWordCount()); };
    const struct {
        StoreOperation change;
        const char* notice;
        Values stored;
    } cases[] = {
        {fontSize(20.5), "fontSize 17", {{"cuebrightFontSize", 20.5}}},
        {fontSize(40), "fontSize 17", {{"cuebrightFontSize", 28.0}}},
        {fontSize(-1), "fontSize 17", {{"cuebrightFontSize", 14.0}}},
        {&CardStore::increaseFontSize, "fontSize 17", {{"cuebrightFontSize", 18.0}}},
        {&CardStore::decreaseFontSize, "fontSize 17", {{"cuebrightFontSize", 16.0}}},
        {&CardStore::resetFontSize, "fontSize 17", {{"cuebrightFontSize", 17.0}}}, // told although it stays
        {opacity(0.75), "opacity 1", {{"cuebrightOpacity", 0.75}}},
        {opacity(2), "opacity 1", {{"cuebrightOpacity", 1.0}}},
        {opacity(0.2), "opacity 1", {{"cuebrightOpacity", 0.4}}},
        {&CardStore::increaseOpacity, "opacity 1", {{"cuebrightOpacity", 1.0}}},
        {pace(100), "speakingPace 130", paceOf(100)},
        {pace(50), "speakingPace 130", paceOf(80)},
        {pace(300), "speakingPace 130", paceOf(250)},
        {&CardStore::toggleWordCount, "showWordCount false", {{"cuebrightWordCount", true}}},
        {toggleTwice, "showWordCount false", {{"cuebrightWordCount", false}}},
        {[](CardStore& s) { s.setTheme("Pink"); }, "theme 'system'", {{"cuebrightTheme", "Pink"}}},
    };
    for (const auto& c : cases) {
        openWith({});
        std::optional<std::size_t> writesWhenTold;
        const auto subscription = store->willChange.subscribe(
            [&](const Change&) { writesWhenTold = writesWhenTold.value_or(surroundings.preferences.writes.size()); });
        c.change(*store);
        EXPECT_EQ(takeNotices(), c.notice);
        EXPECT_EQ(writesWhenTold, 0U);
        EXPECT_EQ(surroundings.preferences.values, c.stored);
        advance(1s);
        EXPECT_EQ(saves(), 0U);
        const auto held = all();
        openWith(surroundings.preferences.values);
        EXPECT_EQ(held, all());
    }
}

TEST_F(CardStorePreferences, StepsOfTheTextSizeEndAtTheLimits)
{
    const std::tuple<double, double, double> cases[] = {
        {28, 28, 27}, {27.5, 28, 26.5}, {14, 15, 14}, {400, 28, 28}, {2, 14, 14}};
    for (const auto& [stored, increased, decreased] : cases) {
        SCOPED_TRACE(stored);
        openWith({{"cuebrightFontSize", stored}});
        store->increaseFontSize();
        EXPECT_EQ(store->fontSize(), increased);
        openWith({{"cuebrightFontSize", stored}});
        store->decreaseFontSize();
        EXPECT_EQ(store->fontSize(), decreased);
        store->resetFontSize();
        EXPECT_EQ(store->fontSize(), 17);
    }
}

TEST_F(CardStorePreferences, StepsOfTheOpacityAreNotRoundedAndEndAtTheLimits)
{
    openWith({});
    for (const double expected :
        {0.9, 0.8, 0.7000000000000001, 0.6000000000000001, 0.5000000000000001, 0.40000000000000013, 0.4, 0.4}) {
        store->decreaseOpacity();
        EXPECT_EQ(store->opacity(), expected);
    }
    for (const double expected :
        {0.5, 0.6, 0.7, 0.7999999999999999, 0.8999999999999999, 0.9999999999999999, 1.0, 1.0}) {
        store->increaseOpacity();
        EXPECT_EQ(store->opacity(), expected);
    }
}

TEST_F(CardStorePreferences, WordsAreCountedInTheOpenEditElseInTheActiveCard)
{
    const std::pair<const char*, std::int64_t> cases[] = {
        {"Talk*[one*|one two] editing 'one two three'", 3},
        {"Talk*[one|# one\n- **two** `three`*]", 5},
        {"Talk*[one two] card -1", 0},
    };
    for (const auto& [description, words] : cases) {
        open(description);
        EXPECT_EQ(store->wordCount(), words) << description;
    }
}

TEST_F(CardStorePreferences, TheReadingTimeIsRoundedUpToWholeMinutes)
{
    constexpr auto kHighest = std::numeric_limits<std::int64_t>::max();
    const std::tuple<int, std::int64_t, const char*> cases[] = {{0, 130, "~1 min"}, {130, 130, "~1 min"},
        {131, 130, "~2 min"}, {261, 130, "~3 min"}, {7, 1, "~7 min"}, {0, kHighest, "~1 min"}, {5, kHighest, "~1 min"}};
    for (const auto& [words, pace, readingTime] : cases) {
        SCOPED_TRACE(std::to_string(words) + " words at " + std::to_string(pace));
        surroundings.preferences.setInteger(preferenceKeys::kSpeakingPace, pace);
        std::string content;
        for (int i = 0; i < words; ++i)
            content += "x ";
        open("Talk*[" + content + "*]");
        EXPECT_EQ(store->readingTime(), readingTime);
    }
}

} // namespace

} // namespace cuebright::test
