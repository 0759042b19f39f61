#include "platform/qt/QtPreferences.h"

#include "platform/qt/Restrictions.h"
#include "support/FakePlatform.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <limits>
#include <tuple>

namespace cuebright::test {

namespace {

class QtPreferencesTest : public testing::Test {
protected:
    QtPreferences open() { return QtPreferences(queue, path); }
    /// A new file each time: QSettings caches files of the same name, size and time.
    QtPreferences openWith(const std::string& content)
    {
        path = folder.file("config" + std::to_string(++fileCount) + "/Cuebright.conf");
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
        return open();
    }
    /// Of the file, after pending writes.
    std::string content()
    {
        queue.runPosted();
        return readFile(path);
    }

    TemporaryFolder folder;
    std::filesystem::path path = folder.file("config/Cuebright/Cuebright.conf");
    int fileCount = 0;
    FakeClock clock;
    FakeMainQueue queue {clock};
};

using Reading = std::tuple<std::optional<bool>, std::optional<std::int64_t>, std::optional<double>>;

} // namespace

TEST_F(QtPreferencesTest, AStoredValueIsReadAsTheKindAskedForOrNotAtAll)
{
    constexpr auto kLargest = std::numeric_limits<std::int64_t>::max();
    const std::pair<Reading, std::vector<std::string>> readings[] = {
        {{true, {}, {}}, {"true", "TRUE", "Yes"}},
        {{true, 1, 1.0}, {"1", "\"1\""}},
        {{false, {}, {}}, {"false", "no", "banana", "", "17,5", "17 pt", "0x11", "nan", "inf", "-INFINITY", "1e999"}},
        {{false, 0, 0.0}, {"0"}},
        {{false, 2, 2.0}, {"2"}},
        {{false, -3, -3.0}, {"-3"}},
        {{false, {}, 17.5}, {"17.5"}},
        {{false, 100, 100.0}, {"1e2", "100.0"}},
        {{false, kLargest, 9223372036854775807.0}, {"9223372036854775807"}},
        {{false, {}, 9223372036854775808.0}, {"9223372036854775808"}},
        {{false, {}, -9223372036854775809.0}, {"-9223372036854775809"}},
        {{{}, {}, {}}, {"@Variant(\\0\\0\\0\\x1)"}},
    };
    for (const auto& [reading, texts] : readings) {
        for (const auto& text : texts) {
            auto preferences = openWith("[General]\nkey=" + text + '\n');
            EXPECT_EQ(
                Reading(preferences.boolean("key"), preferences.integer("key"), preferences.number("key")), reading)
                << text;
        }
    }
}

TEST_F(QtPreferencesTest, EveryKindComesBackExactlyAndWhatIsNotThereIsAbsent)
{
    constexpr auto kLeast = std::numeric_limits<std::int64_t>::min();
    for (const double value : {0.1, 0.7000000000000001, 1.0 / 3, 17.0, -0.0, 1e300, 5e-324}) {
        {
            auto preferences = openWith("");
            preferences.setBoolean("yes", true);
            preferences.setBoolean("no", false);
            preferences.setInteger("least", kLeast);
            preferences.setText("text", "one, two; three");
            preferences.setNumber("number", value);
            preferences.setNumbers("group", {{"x", value}});
        }
        auto read = open();
        EXPECT_EQ(std::tuple(read.boolean("yes"), read.boolean("no"), read.integer("least"), read.text("text"),
                      read.number("number"), read.numbers("group")),
            std::tuple(true, false, kLeast, "one, two; three", value, Preferences::Numbers {{"x", value}}));
        EXPECT_EQ(std::tuple(read.boolean("?"), read.integer("?"), read.text("?"), read.number("?"), read.numbers("?")),
            std::tuple(std::nullopt, std::nullopt, std::nullopt, std::nullopt, Preferences::Numbers {}));
    }
}

TEST_F(QtPreferencesTest, OnlyFiniteMembersOfAGroupCountAndSettingItReplacesItWhole)
{
    auto preferences = openWith("[frame]\nh=560\nw=nan\nx=12.5\ny=left\n[frames]\nx=7\n");
    EXPECT_EQ(preferences.numbers("frame"), (Preferences::Numbers {{"h", 560}, {"x", 12.5}}));
    preferences.setNumbers("frame", {{"x", 3}});
    EXPECT_EQ(content(), "[frame]\nx=3\n\n[frames]\nx=7\n");
}

TEST_F(QtPreferencesTest, ChangesHoldAtOnceAndReachTheFileTogetherAtTheEndOfTheTurn)
{
    auto preferences = open();
    preferences.setText("theme", "dark");
    preferences.setNumber("size", 18);
    preferences.setNumber("size", 19);
    EXPECT_EQ(preferences.number("size"), 19.0);
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_EQ(content(), "[General]\nsize=19\ntheme=dark\n");
}

TEST_F(QtPreferencesTest, AFullDiskCostsOnlyTheChangeAndTheNextOneMakesUpForIt)
{
    auto preferences = open();
    preferences.setText("theme", "dark");
    EXPECT_EQ(content(), "[General]\ntheme=dark\n");
    EXPECT_EQ(TemporaryFolder::modeOf(path), 0600u);
    for (const rlim_t room : {0u, 5u, 12u}) {
        preferences.setText("theme", "light");
        withRoomFor(room, [&] { EXPECT_EQ(content(), "[General]\ntheme=dark\n"); });
        EXPECT_EQ(preferences.text("theme"), "light");
    }
    preferences.setText("other", "x");
    EXPECT_EQ(content(), "[General]\nother=x\ntheme=light\n");
}

} // namespace cuebright::test
