#include "platform/qt/QtFileSystem.h"

#include "platform/qt/Restrictions.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace cuebright::test {

namespace {

namespace fs = std::filesystem;
using Readers = FileSystem::Readers;

/// Is a link; permissions; content.
using File = std::tuple<bool, unsigned, std::string>;

File fileAt(const fs::path& path) { return {fs::is_symlink(path), TemporaryFolder::modeOf(path), readFile(path)}; }

class QtFileSystemTest : public testing::Test {
protected:
    /// The error; empty on success.
    std::string write(const fs::path& path, std::string_view content = "new", Readers readers = Readers::Owner)
    {
        const auto error = files.writeFileAtomically(path, content, readers);
        return error ? error->description : std::string();
    }

    TemporaryFolder folder;
    QtFileSystem files;
};

} // namespace

TEST_F(QtFileSystemTest, AFullDiskKeepsTheOldFileSaysWhyAndRecovers)
{
    const std::pair<std::size_t, rlim_t> sizesAndRoom[] = {{10, 5}, {10'240, 10'239}, {1'048'576, 524'288}};
    for (const auto& [size, room] : sizesAndRoom) {
        SCOPED_TRACE(std::to_string(room) + " of " + std::to_string(size));
        const auto path = folder.write("state.json", "old content");
        const std::string content(size, 'x');
        withRoomFor(room, [&] { EXPECT_EQ(write(path, content), "File too large"); });
        EXPECT_EQ(readFile(path), "old content");
        const fs::directory_iterator entries(folder.path());
        EXPECT_EQ(std::distance(begin(entries), end(entries)), 1) << "a temporary file was left behind";
        EXPECT_EQ(write(path, content), "");
        EXPECT_EQ(readFile(path), content);
    }
}

TEST_F(QtFileSystemTest, ANewFileIsForItsOwnerOnlyOrAsTheUserHasHisFilesAndAnOldOneStaysAsItIs)
{
    const auto former = ::umask(027);
    EXPECT_EQ(write(folder.file("shared"), "text", Readers::AsUsual), "");
    ::umask(former);
    EXPECT_EQ(fileAt(folder.file("shared")), File(false, 0640, "text"));
    EXPECT_EQ(write(folder.file("shared"), ""), "");
    EXPECT_EQ(fileAt(folder.file("shared")), File(false, 0640, ""));
    EXPECT_EQ(write(folder.file("new"), "text"), "");
    EXPECT_EQ(fileAt(folder.file("new")), File(false, 0600, "text"));
}

TEST_F(QtFileSystemTest, ASymbolicLinkStaysAndItsTargetIsReplacedOrMade)
{
    fs::create_directory(folder.file("elsewhere"));
    fs::create_symlink("elsewhere/target", folder.file("link"));
    fs::create_symlink("link", folder.file("link to the link"));
    for (const auto& [link, text] : {std::pair("link", "made"), std::pair("link to the link", "replaced")}) {
        EXPECT_EQ(write(folder.file(link), text), "");
        EXPECT_EQ(fileAt(folder.file("elsewhere/target")), File(false, 0600, text));
        EXPECT_EQ(fileAt(folder.file("link to the link")), File(true, 0600, text));
        EXPECT_EQ(fileAt(folder.file("link")), File(true, 0600, text));
    }
}

TEST_F(QtFileSystemTest, AFolderIsNoTargetForAWriteAndNoneIsMadeForOne)
{
    fs::create_directory(folder.file("taken"));
    const auto error = write(folder.file("taken"));
    EXPECT_FALSE(error.empty());
    EXPECT_EQ(error.find('\n'), std::string::npos);
    EXPECT_TRUE(fs::is_directory(folder.file("taken")));
    EXPECT_EQ(write(folder.file("missing/file")), "No such file or directory");
    EXPECT_FALSE(fs::exists(folder.file("missing")));
}

TEST_F(QtFileSystemTest, PermissionsKeepWritersAndReadersOutButForAFileOfTheProgramsOwn)
{
    for (const auto mode : {0000, 0444, 0666}) {
        fs::permissions(folder.path(), fs::perms(0777));
        asOrdinaryUser([&] {
            const auto path = folder.write("file" + std::to_string(mode), "old");
            fs::permissions(path, fs::perms(mode));
            EXPECT_EQ(files.readFile(path, 0).has_value(), mode != 0);
            EXPECT_EQ(write(path, "old", Readers::AsUsual).empty(), mode == 0666);
            EXPECT_EQ(write(path, "new"), "");
            EXPECT_EQ(files.readFile(path, 0), "new");
        });
        fs::permissions(folder.path(), fs::perms(0555));
        asOrdinaryUser([&] {
            EXPECT_EQ(write(folder.file("file" + std::to_string(mode)), "newest"), "Permission denied");
            EXPECT_EQ(readFile(folder.file("file" + std::to_string(mode))), "new");
        });
    }
    fs::permissions(folder.path(), fs::perms(0777)); // so that it can be removed
}

TEST_F(QtFileSystemTest, AFileIsReadWholeWithRoomBehindIt)
{
    for (const std::size_t size : {0u, 1u, 262'143u, 262'144u, 262'145u, 1'000'000u}) {
        std::string written(size, '\0');
        for (std::size_t i = 0; i < size; ++i)
            written[i] = static_cast<char>(i * 7 / 3);
        const auto read = files.readFile(folder.write("file", written), 64);
        ASSERT_TRUE(read) << size;
        EXPECT_TRUE(*read == written) << size;
        EXPECT_GE(read->capacity(), size + 64);
    }
    EXPECT_NE(files.readFile("/proc/self/cmdline", 0)->find("ui_tests"), std::string::npos) << "which hides its size";
}

TEST_F(QtFileSystemTest, OnlyRegularFilesAreRead)
{
    ASSERT_EQ(mkfifo(folder.file("pipe").c_str(), 0600), 0);
    fs::create_symlink("pipe", folder.file("link to the pipe"));
    for (const auto& path : {folder.file("pipe"), folder.file("link to the pipe"), folder.path(),
             folder.file("missing"), fs::path("/dev/zero")})
        EXPECT_FALSE(files.readFile(path, 0)) << path;
}

TEST_F(QtFileSystemTest, NewFoldersAreForTheirOwnerOnlyAndWhatExistsStaysAsItIs)
{
    fs::create_directory(folder.file("open"));
    fs::permissions(folder.file("open"), fs::perms(0755));
    EXPECT_TRUE(files.createDirectories(folder.file("open/a/b/")));
    EXPECT_TRUE(files.createDirectories(folder.file("open/a/b")));
    const std::pair<const char*, unsigned> modes[] = {{"open", 0755}, {"open/a", 0700}, {"open/a/b", 0700}};
    for (const auto& [path, mode] : modes)
        EXPECT_EQ(TemporaryFolder::modeOf(folder.file(path)), mode) << path;
    folder.write("file", "text");
    EXPECT_FALSE(files.createDirectories(folder.file("file")));
    EXPECT_FALSE(files.createDirectories(folder.file("file/below")));
}

} // namespace cuebright::test
