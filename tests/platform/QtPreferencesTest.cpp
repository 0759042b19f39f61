#include "platform/qt/QtPreferences.h"

#include "platform/Restrictions.h"
#include "platform/TemporaryFolder.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <fstream>
#include <limits>

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

struct Reading {
    const char* inFile;
    std::optional<bool> boolean;
    std::optional<std::int64_t> integer;
    std::optional<double> number;
};

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
        auto preferences = openWith(std::string("[General]\nkey=") + reading.inFile + '\n');
        EXPECT_EQ(preferences.boolean("key"), reading.boolean) << reading.inFile;
        EXPECT_EQ(preferences.integer("key"), reading.integer) << reading.inFile;
        EXPECT_EQ(preferences.number("key"), reading.number) << reading.inFile;
    }
}

TEST_F(QtPreferencesTest, WhatIsNotThereIsAbsentOfEveryKind)
{
    auto preferences = open();
    EXPECT_FALSE(preferences.boolean("key"));
    EXPECT_FALSE(preferences.integer("key"));
    EXPECT_FALSE(preferences.number("key"));
    EXPECT_FALSE(preferences.text("key"));
    EXPECT_TRUE(preferences.numbers("key").empty());
}

TEST_F(QtPreferencesTest, NumbersComeBackExactly)
{
    const double values[] = {0.1, 0.7000000000000001, 1.0 / 3, 17, -0.0, 1e300, 5e-324};
    for (const double value : values) {
        {
            auto preferences = openWith("");
            preferences.setNumber("number", value);
            preferences.setNumbers("group", {{"x", value}});
        }
        auto preferences = open();
        EXPECT_EQ(preferences.number("number"), value);
        EXPECT_EQ(preferences.numbers("group"), (Preferences::Numbers {{"x", value}}));
    }
}

TEST_F(QtPreferencesTest, EveryKindComesBackFromTheFile)
{
    {
        auto preferences = open();
        preferences.setBoolean("yes", true);
        preferences.setBoolean("no", false);
        preferences.setInteger("least", std::numeric_limits<std::int64_t>::min());
        preferences.setText("text", "one, two; three");
    }
    auto preferences = open();
    EXPECT_EQ(preferences.boolean("yes"), true);
    EXPECT_EQ(preferences.boolean("no"), false);
    EXPECT_EQ(preferences.integer("least"), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(preferences.text("text"), "one, two; three");
}

TEST_F(QtPreferencesTest, OnlyFiniteMembersOfAGroupCount)
{
    auto preferences = openWith("[cuebrightWindowFrame]\nh=560\nw=nan\nx=12.5\ny=left\n[other]\nz=1\n");
    const Preferences::Numbers expected {{"h", 560}, {"x", 12.5}};
    EXPECT_EQ(preferences.numbers(preferenceKeys::kWindowFrame), expected);
}

TEST_F(QtPreferencesTest, SettingAGroupReplacesItWhole)
{
    auto preferences = openWith("[frame]\nx=1\ny=2\n[frames]\nx=7\n");
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

TEST_F(QtPreferencesTest, TheLastChangesAreWrittenOnDestruction)
{
    open().setText("theme", "dark");
    EXPECT_EQ(content(), "[General]\ntheme=dark\n");
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
