#include "store/CardStoreFixture.h"
#include "store/PreferenceKeys.h"

#include <limits>
#include <tuple>

namespace cuebright::test {

namespace {

using Values = FakePreferences::Values;

class CardStorePreferences : public CardStoreFixture {
protected:
    void openWith(Values stored)
    {
        fake.preferences.values = std::move(stored);
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
        {{{"cuebrightTheme", "Pink"}, {"cuebrightFontSize", 400.0}, {"cuebrightOpacity", 3.0},
             {"cuebrightWordCount", true}, {"cuebrightSpeakingPace", std::int64_t {9999}}},
            {"Pink", 400, 3, true, 9999}},
        {{{"cuebrightFontSize", 0.5}, {"cuebrightOpacity", 0.01}, {"cuebrightSpeakingPace", std::int64_t {1}}},
            {"system", 0.5, 0.01, false, 1}},
        {{{"cuebrightFontSize", 0.0}, {"cuebrightOpacity", -0.5}, {"cuebrightSpeakingPace", std::int64_t {0}}},
            {"system", 17, 1, false, 130}},
    };
    for (const auto& [stored, expected] : cases) {
        openWith(stored);
        EXPECT_EQ(all(), expected);
        EXPECT_TRUE(fake.preferences.writes.empty());
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
        EXPECT_EQ(fake.appearance.choices, (std::vector {FollowSystem, choice}));
        EXPECT_EQ(fake.preferences.values, (Values {{"cuebrightTheme", theme}}));
        openWith(fake.preferences.values);
        EXPECT_EQ(fake.appearance.choices, std::vector {choice});
    }
}

TEST_F(CardStorePreferences, SettersLimitAndStoreImmediately)
{
    const auto setSize = [](double value) { return [value](CardStore& s) { s.setFontSize(value); }; };
    const auto setOpacity = [](double value) { return [value](CardStore& s) { s.setOpacity(value); }; };
    const auto setPace = [](std::int64_t value) { return [value](CardStore& s) { s.setSpeakingPace(value); }; };
    const auto setTheme = [](CardStore& s) { s.setTheme("Pink"); };
    const auto size = [](double value) { return Values {{"cuebrightFontSize", value}}; };
    const auto opacity = [](double value) { return Values {{"cuebrightOpacity", value}}; };
    const auto pace = [](std::int64_t value) { return Values {{"cuebrightSpeakingPace", value}}; };
    const auto wordCount = [](bool value) { return Values {{"cuebrightWordCount", value}}; };
    const StoreOperation larger = &CardStore::increaseFontSize;
    const StoreOperation smaller = &CardStore::decreaseFontSize;
    const StoreOperation clearer = &CardStore::decreaseOpacity;
    const StoreOperation denser = &CardStore::increaseOpacity;
    const struct {
        Values stored;
        StoreOperation change;
        Values after;
    } cases[] = {
        {{}, setSize(20.5), size(20.5)},
        {{}, setSize(40), size(28)},
        {size(27.5), larger, size(28)},
        {size(2), larger, size(14)},
        {size(400), smaller, size(28)},
        {size(20), &CardStore::resetFontSize, size(17)},
        {{}, setOpacity(0.75), opacity(0.75)},
        {{}, setOpacity(2), opacity(1)},
        {{}, setOpacity(0.2), opacity(0.4)},
        {opacity(0.7), denser, opacity(0.7999999999999999)}, // not rounded
        {opacity(0.8), clearer, opacity(0.7000000000000001)},
        {{}, setPace(100), pace(100)},
        {{}, setPace(50), pace(80)},
        {{}, &CardStore::toggleWordCount, wordCount(true)},
        {wordCount(true), &CardStore::toggleWordCount, wordCount(false)},
        {{}, setTheme, {{"cuebrightTheme", "Pink"}}},
    };
    for (const auto& c : cases) {
        openWith(c.stored);
        perform(c.change);
        EXPECT_EQ(fake.preferences.values, c.after);
        advance(1s);
        EXPECT_EQ(saves(), 0U);
        const auto held = all();
        openWith(fake.preferences.values);
        EXPECT_EQ(held, all());
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
        fake.preferences.setInteger(preferenceKeys::kSpeakingPace, pace);
        std::string content;
        for (int i = 0; i < words; ++i)
            content += "x ";
        open("Talk*[" + content + "*]");
        EXPECT_EQ(store->readingTime(), readingTime);
    }
}

} // namespace

} // namespace cuebright::test
