#include "platform/qt/QtFileSystem.h"

#include "platform/Restrictions.h"
#include "platform/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace cuebright::test {

namespace {

namespace fs = std::filesystem;
using Readers = FileSystem::Readers;

class QtFileSystemTest : public testing::Test {
protected:
    /// What went wrong; empty when the file is written.
    std::string write(const fs::path& path, std::string_view content = "new", Readers readers = Readers::Owner)
    {
        const auto error = files.writeFileAtomically(path, content, readers);
        return error ? error->description : std::string();
    }
    /// As an ordinary user to whom the folder belongs with these permissions.
    std::string writeAsUser(const fs::path& path, fs::perms folderPermissions)
    {
        fs::permissions(folder.path(), folderPermissions);
        const AsOrdinaryUser user;
        return write(path);
    }
    static std::string contentOf(const fs::path& path) { return TemporaryFolder::contentOf(path); }
    static unsigned modeOf(const fs::path& path) { return TemporaryFolder::modeOf(path); }

    TemporaryFolder folder;
    QtFileSystem files;
};

} // namespace

TEST_F(QtFileSystemTest, AFullDiskKeepsTheOldFileSaysWhyAndRecovers)
{
    const std::pair<std::size_t, rlim_t> sizesAndRoom[] = {{10, 0}, {10, 5}, {10'240, 0}, {10'240, 5'120},
        {10'240, 10'239}, {1'048'576, 0}, {1'048'576, 524'288}, {1'048'576, 1'048'575}};
    for (const auto& [size, room] : sizesAndRoom) {
        SCOPED_TRACE(std::to_string(room) + " of " + std::to_string(size));
        const auto path = folder.write("state.json", "old content");
        const std::string content(size, 'x');
        {
            const FileSizeLimit limit(room);
            EXPECT_EQ(write(path, content), "File too large");
        }
        EXPECT_EQ(contentOf(path), "old content");
        EXPECT_EQ(folder.entryCount(), 1u) << "a temporary file was left behind";
        EXPECT_EQ(write(path, content), "");
        EXPECT_EQ(contentOf(path), content);
    }
}

TEST_F(QtFileSystemTest, ANewFileIsForItsOwnerOnlyOrAsTheUserHasHisFilesAndAnOldOneStaysAsItIs)
{
    const auto former = ::umask(027);
    EXPECT_EQ(write(folder.file("shared"), "text", Readers::AsUsual), "");
    ::umask(former);
    EXPECT_EQ(modeOf(folder.file("shared")), 0640u);
    EXPECT_EQ(write(folder.file("shared"), ""), "");
    EXPECT_EQ(contentOf(folder.file("shared")), "");
    EXPECT_EQ(modeOf(folder.file("shared")), 0640u);
    EXPECT_EQ(write(folder.file("new"), "text"), "");
    EXPECT_EQ(contentOf(folder.file("new")), "text");
    EXPECT_EQ(modeOf(folder.file("new")), 0600u);
}

TEST_F(QtFileSystemTest, ASymbolicLinkStaysAndItsTargetIsReplacedOrMade)
{
    fs::create_directory(folder.file("elsewhere"));
    const auto target = folder.file("elsewhere/target");
    fs::create_symlink("elsewhere/target", folder.file("link"));
    fs::create_symlink("link", folder.file("link to the link"));
    EXPECT_EQ(write(folder.file("link"), "old"), "");
    EXPECT_EQ(contentOf(target), "old");
    EXPECT_EQ(modeOf(target), 0600u);
    EXPECT_EQ(write(folder.file("link to the link"), "new"), "");
    EXPECT_EQ(contentOf(target), "new");
    EXPECT_TRUE(fs::is_symlink(folder.file("link to the link")));
    EXPECT_TRUE(fs::is_symlink(folder.file("link")));
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

TEST_F(QtFileSystemTest, PermissionsOfTheFolderAndOfTheFileKeepWritersAndReadersOut)
{
    const auto path = folder.write("file", "old");
    fs::permissions(path, fs::perms(0666));
    EXPECT_EQ(writeAsUser(path, fs::perms(0555)), "Permission denied");
    EXPECT_EQ(contentOf(path), "old");
}

TEST_F(QtFileSystemTest, AFileThatMayNotBeWrittenIsReplacedOnlyWhereItIsTheProgramsOwn)
{
    fs::permissions(folder.path(), fs::perms(0777));
    const AsOrdinaryUser user;
    for (const auto mode : {fs::perms::none, fs::perms(0444)}) {
        const auto path = folder.write("file" + std::to_string(static_cast<unsigned>(mode)), "old");
        fs::permissions(path, mode);
        EXPECT_EQ(files.readFile(path, 0).has_value(), mode != fs::perms::none);
        EXPECT_TRUE(files.writeFileAtomically(path, "exported", FileSystem::Readers::AsUsual));
        EXPECT_FALSE(files.writeFileAtomically(path, "new", FileSystem::Readers::Owner));
        EXPECT_EQ(files.readFile(path, 0), "new");
    }
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
    EXPECT_EQ(modeOf(folder.file("open")), 0755u);
    EXPECT_EQ(modeOf(folder.file("open/a")), 0700u);
    EXPECT_EQ(modeOf(folder.file("open/a/b")), 0700u);
    EXPECT_TRUE(files.createDirectories(folder.file("open/a/b")));
    folder.write("file", "text");
    EXPECT_FALSE(files.createDirectories(folder.file("file")));
    EXPECT_FALSE(files.createDirectories(folder.file("file/below")));
}

TEST_F(QtFileSystemTest, RemovingTakesFilesAndLinksButNoFolders)
{
    fs::create_directory(folder.file("folder"));
    const auto target = folder.write("target", "text");
    fs::create_symlink("target", folder.file("link"));
    EXPECT_TRUE(files.removeFile(folder.file("link")));
    EXPECT_TRUE(files.exists(target));
    EXPECT_TRUE(files.removeFile(target));
    EXPECT_FALSE(files.exists(target));
    EXPECT_FALSE(files.removeFile(target));
    EXPECT_FALSE(files.removeFile(folder.file("folder")));
    EXPECT_TRUE(files.exists(folder.file("folder")));
}

TEST_F(QtFileSystemTest, NamesOfAnyScriptWork)
{
    const auto path = folder.path() / u8"Füße 日本 🙂";
    EXPECT_TRUE(files.createDirectories(path));
    EXPECT_EQ(write(path / u8"naïve.md", "text"), "");
    EXPECT_EQ(files.readFile(path / u8"naïve.md", 0), "text");
}

} // namespace cuebright::test
