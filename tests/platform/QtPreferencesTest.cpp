#include "platform/qt/QtPreferences.h"

#include "platform/Restrictions.h"
#include "platform/TemporaryFolder.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <fstream>
#include <limits>
#include <tuple>

namespace cuebright::test {

namespace {

class QtPreferencesTest : public testing::Test {
protected:
    QtPreferences open() { return QtPreferences(queue, path); }
    /// A file of its own for each content: QSettings takes one of the same name, size and time for the same.
    QtPreferences openWith(const std::string& content)
    {
        path = folder.file("config" + std::to_string(++fileCount) + "/Cuebright.conf");
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
        return open();
    }
    std::string content() { return TemporaryFolder::contentOf(path); }

    TemporaryFolder folder;
    std::filesystem::path path = folder.file("config/Cuebright/Cuebright.conf");
    int fileCount = 0;
    FakeClock clock;
    FakeMainQueue queue {clock};
};

using Reading = std::tuple<std::string, std::optional<bool>, std::optional<std::int64_t>, std::optional<double>>;

} // namespace

TEST_F(QtPreferencesTest, AStoredValueIsReadAsTheKindAskedForOrNotAtAll)
{
    constexpr auto kLargest = std::numeric_limits<std::int64_t>::max();
    const Reading readings[] = {
        {"true", true, {}, {}},
        {"TRUE", true, {}, {}},
        {"Yes", true, {}, {}},
        {"1", true, 1, 1.0},
        {"\"1\"", true, 1, 1.0},
        {"false", false, {}, {}},
        {"no", false, {}, {}},
        {"banana", false, {}, {}},
        {"", false, {}, {}},
        {"2", false, 2, 2.0},
        {"-3", false, -3, -3.0},
        {"0", false, 0, 0.0},
        {"17.5", false, {}, 17.5},
        {"1e2", false, {}, 100.0},
        {"17,5", false, {}, {}},
        {"17 pt", false, {}, {}},
        {"0x11", false, {}, {}},
        {"nan", false, {}, {}},
        {"inf", false, {}, {}},
        {"-INFINITY", false, {}, {}},
        {"1e999", false, {}, {}},
        {"9223372036854775807", false, kLargest, 9223372036854775807.0},
        {"9223372036854775808", false, {}, 9223372036854775808.0},
        {"-9223372036854775809", false, {}, -9223372036854775809.0},
        {"@Variant(\\0\\0\\0\\x1)", {}, {}, {}},
    };
    for (const auto& reading : readings) {
        const auto& inFile = std::get<0>(reading);
        auto preferences = openWith("[General]\nkey=" + inFile + '\n');
        EXPECT_EQ(
            Reading(inFile, preferences.boolean("key"), preferences.integer("key"), preferences.number("key")), reading)
            << inFile;
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
        EXPECT_EQ(std::tuple(read.boolean("yes"), read.boolean("no"), read.boolean("none")),
            std::tuple(true, false, std::nullopt));
        EXPECT_EQ(std::tuple(read.integer("least"), read.integer("none")), std::tuple(kLeast, std::nullopt));
        EXPECT_EQ(std::tuple(read.text("text"), read.text("none")), std::tuple("one, two; three", std::nullopt));
        EXPECT_EQ(std::tuple(read.number("number"), read.number("none")), std::tuple(value, std::nullopt));
        EXPECT_EQ(read.numbers("group"), (Preferences::Numbers {{"x", value}}));
        EXPECT_TRUE(read.numbers("none").empty());
    }
}

TEST_F(QtPreferencesTest, OnlyFiniteMembersOfAGroupCountAndSettingItReplacesItWhole)
{
    auto preferences = openWith("[frame]\nh=560\nw=nan\nx=12.5\ny=left\n[frames]\nx=7\n");
    EXPECT_EQ(preferences.numbers("frame"), (Preferences::Numbers {{"h", 560}, {"x", 12.5}}));
    preferences.setNumbers("frame", {{"x", 3}});
    queue.runPosted();
    EXPECT_EQ(content(), "[frame]\nx=3\n\n[frames]\nx=7\n");
}

TEST_F(QtPreferencesTest, RemovingTakesTheValueOfWhateverKind)
{
    auto preferences = openWith("a=1\nb=2\n[frame]\nx=1\n");
    preferences.remove("a");
    preferences.remove("frame");
    preferences.remove("missing");
    EXPECT_FALSE(preferences.text("a"));
    EXPECT_TRUE(preferences.numbers("frame").empty());
    queue.runPosted();
    EXPECT_EQ(content(), "[General]\nb=2\n");
}

TEST_F(QtPreferencesTest, ChangesHoldAtOnceAndReachTheFileTogetherAtTheEndOfTheTurn)
{
    auto preferences = open();
    preferences.setText("theme", "dark");
    preferences.setNumber("size", 18);
    preferences.setNumber("size", 19);
    EXPECT_EQ(preferences.number("size"), 19.0);
    EXPECT_FALSE(std::filesystem::exists(path));
    queue.runPosted();
    EXPECT_EQ(content(), "[General]\nsize=19\ntheme=dark\n");
}

TEST_F(QtPreferencesTest, AnUnchangedValueIsNotWritten)
{
    auto preferences = openWith("[General]\na=1\n# by hand\n");
    preferences.setInteger("a", 1);
    queue.runPosted();
    preferences.setInteger("a", 2);
    preferences.setInteger("a", 1);
    queue.runPosted();
    EXPECT_EQ(content(), "[General]\na=1\n# by hand\n");
}

TEST_F(QtPreferencesTest, NonsenseInTheFileBreaksNothing)
{
    for (const auto nonsense : {"\0\x1\xff\xfe[[[=\n=", "[General\na=\"b\nc=\\x", "a=1\n[%%%]\n\\=2"}) {
        auto preferences = openWith(nonsense);
        preferences.setInteger("key", 2);
        queue.runPosted();
        EXPECT_EQ(open().integer("key"), 2) << nonsense;
    }
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    EXPECT_FALSE(open().text("key")) << "a folder in the file's place";
}

TEST_F(QtPreferencesTest, AFullDiskCostsOnlyTheChangeAndTheNextOneMakesUpForIt)
{
    auto preferences = open();
    preferences.setText("theme", "dark");
    queue.runPosted();
    EXPECT_EQ(TemporaryFolder::modeOf(path), 0600u);
    for (const int limit : {0, 5, 12}) {
        const FileSizeLimit full(static_cast<rlim_t>(limit));
        preferences.setText("theme", "light");
        queue.runPosted();
        EXPECT_EQ(preferences.text("theme"), "light");
        EXPECT_EQ(content(), "[General]\ntheme=dark\n");
    }
    preferences.setText("other", "x");
    queue.runPosted();
    EXPECT_EQ(content(), "[General]\nother=x\ntheme=light\n");
}

TEST_F(QtPreferencesTest, WhatAKilledRunLeftBehindIsNotInTheWay)
{
    openWith("[General]\na=1\n");
    for (const auto* const name : {"Cuebright.conf.new", "Cuebright.conf.new1"})
        std::ofstream(path.parent_path() / name) << "[General]\na=";
    auto preferences = open();
    preferences.setInteger("a", 2);
    queue.runPosted();
    EXPECT_EQ(content(), "[General]\na=2\n");
}

TEST_F(QtPreferencesTest, ALinkToTheFileStaysALink)
{
    openWith("[General]\na=1\n");
    const auto real = folder.file("real.conf");
    std::filesystem::rename(path, real);
    std::filesystem::create_symlink(real, path);
    open().setInteger("a", 2);
    EXPECT_TRUE(std::filesystem::is_symlink(path));
    EXPECT_EQ(TemporaryFolder::contentOf(real), "[General]\na=2\n");
}

} // namespace cuebright::test
