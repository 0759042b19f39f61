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
    /// Writes as an ordinary user to whom the folder belongs with these permissions.
    std::optional<FileError> writeAsUser(const fs::path& path, fs::perms folderPermissions)
    {
        fs::permissions(folder.path(), folderPermissions);
        std::optional<FileError> error;
        {
            const AsOrdinaryUser user;
            error = files.writeFileAtomically(path, "new", Readers::Owner);
        }
        fs::permissions(folder.path(), fs::perms::owner_all);
        return error;
    }

    TemporaryFolder folder;
    QtFileSystem files;
};

struct FullDisk {
    const char* name;
    std::size_t size;
    rlim_t room;
};

class QtFileSystemOnAFullDisk : public testing::TestWithParam<FullDisk> { };

} // namespace

TEST_P(QtFileSystemOnAFullDisk, AFailedWriteKeepsTheOldFileSaysWhyAndRecovers)
{
    const TemporaryFolder folder;
    const auto path = folder.write("state.json", "old content");
    const std::string content(GetParam().size, 'x');
    QtFileSystem files;

    std::optional<FileError> error;
    {
        const FileSizeLimit limit(GetParam().room);
        error = files.writeFileAtomically(path, content, Readers::Owner);
    }
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description, "File too large");
    EXPECT_EQ(TemporaryFolder::contentOf(path), "old content");
    EXPECT_EQ(folder.entryCount(), 1u) << "a temporary file was left behind";

    EXPECT_FALSE(files.writeFileAtomically(path, content, Readers::Owner));
    EXPECT_EQ(TemporaryFolder::contentOf(path), content);
}

INSTANTIATE_TEST_SUITE_P(Sizes, QtFileSystemOnAFullDisk,
    testing::Values(FullDisk {"NothingOf10Bytes", 10, 0}, FullDisk {"HalfOf10Bytes", 10, 5},
        FullDisk {"NothingOf10KB", 10'240, 0}, FullDisk {"HalfOf10KB", 10'240, 5'120},
        FullDisk {"AllButOneByteOf10KB", 10'240, 10'239}, FullDisk {"NothingOf1MB", 1'048'576, 0},
        FullDisk {"HalfOf1MB", 1'048'576, 524'288}, FullDisk {"AllButOneByteOf1MB", 1'048'576, 1'048'575}),
    [](const auto& test) { return test.param.name; });

TEST_F(QtFileSystemTest, ANewFileIsForItsOwnerOnlyOrAsTheUserHasHisFiles)
{
    const auto former = ::umask(027);
    EXPECT_FALSE(files.writeFileAtomically(folder.file("shared"), "text", Readers::AsUsual));
    ::umask(former);
    EXPECT_EQ(TemporaryFolder::modeOf(folder.file("shared")), 0640u);
    EXPECT_FALSE(files.writeFileAtomically(folder.file("new"), "text", Readers::Owner));
    EXPECT_EQ(TemporaryFolder::contentOf(folder.file("new")), "text");
    EXPECT_EQ(TemporaryFolder::modeOf(folder.file("new")), 0600u);
}

TEST_F(QtFileSystemTest, PermissionsOfAnExistingFileAreKept)
{
    const auto path = folder.write("shared", "old");
    fs::permissions(path, fs::perms(0640));
    EXPECT_FALSE(files.writeFileAtomically(path, "new", Readers::Owner));
    EXPECT_EQ(TemporaryFolder::contentOf(path), "new");
    EXPECT_EQ(TemporaryFolder::modeOf(path), 0640u);
}

TEST_F(QtFileSystemTest, AnEmptyContentReplacesTheFile)
{
    const auto path = folder.write("file", "old");
    EXPECT_FALSE(files.writeFileAtomically(path, "", Readers::Owner));
    EXPECT_EQ(fs::file_size(path), 0u);
}

TEST_F(QtFileSystemTest, ASymbolicLinkStaysAndItsTargetIsReplaced)
{
    fs::create_directory(folder.file("elsewhere"));
    const auto target = folder.write("elsewhere/target", "old");
    fs::create_symlink("elsewhere/target", folder.file("link"));
    fs::create_symlink("link", folder.file("link to the link"));
    EXPECT_FALSE(files.writeFileAtomically(folder.file("link to the link"), "new", Readers::Owner));
    EXPECT_TRUE(fs::is_symlink(folder.file("link to the link")));
    EXPECT_TRUE(fs::is_symlink(folder.file("link")));
    EXPECT_EQ(TemporaryFolder::contentOf(target), "new");
}

TEST_F(QtFileSystemTest, ADanglingLinkGetsItsTarget)
{
    fs::create_symlink("target", folder.file("link"));
    EXPECT_FALSE(files.writeFileAtomically(folder.file("link"), "new", Readers::Owner));
    EXPECT_TRUE(fs::is_symlink(folder.file("link")));
    EXPECT_EQ(TemporaryFolder::contentOf(folder.file("target")), "new");
    EXPECT_EQ(TemporaryFolder::modeOf(folder.file("target")), 0600u);
}

TEST_F(QtFileSystemTest, AFolderIsNoTargetForAWrite)
{
    fs::create_directory(folder.file("taken"));
    const auto error = files.writeFileAtomically(folder.file("taken"), "text", Readers::Owner);
    ASSERT_TRUE(error);
    EXPECT_FALSE(error->description.empty());
    EXPECT_EQ(error->description.find('\n'), std::string::npos);
    EXPECT_TRUE(fs::is_directory(folder.file("taken")));
}

TEST_F(QtFileSystemTest, AMissingFolderFailsTheWriteWithTheSystemsReason)
{
    const auto error = files.writeFileAtomically(folder.file("missing/file"), "text", Readers::Owner);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description, "No such file or directory");
    EXPECT_FALSE(fs::exists(folder.file("missing")));
}

TEST_F(QtFileSystemTest, AFolderWithoutWritePermissionKeepsTheOldFile)
{
    const auto path = folder.write("file", "old");
    fs::permissions(path, fs::perms(0666));
    const auto error = writeAsUser(path, fs::perms(0555));
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description, "Permission denied");
    EXPECT_EQ(TemporaryFolder::contentOf(path), "old");
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
}

TEST_F(QtFileSystemTest, AFileThatHidesItsSizeIsReadWhole)
{
    const auto read = files.readFile("/proc/self/cmdline", 0);
    ASSERT_TRUE(read);
    EXPECT_NE(read->find("ui_tests"), std::string::npos);
}

TEST_F(QtFileSystemTest, OnlyRegularFilesAreRead)
{
    ASSERT_EQ(mkfifo(folder.file("pipe").c_str(), 0600), 0);
    fs::create_symlink("pipe", folder.file("link to the pipe"));
    EXPECT_FALSE(files.readFile(folder.file("pipe"), 0));
    EXPECT_FALSE(files.readFile(folder.file("link to the pipe"), 0));
    EXPECT_FALSE(files.readFile(folder.path(), 0));
    EXPECT_FALSE(files.readFile(folder.file("missing"), 0));
    EXPECT_FALSE(files.readFile("/dev/zero", 0));
}

TEST_F(QtFileSystemTest, NewFoldersAreForTheirOwnerOnlyAndExistingOnesStayAsTheyAre)
{
    fs::create_directory(folder.file("open"));
    fs::permissions(folder.file("open"), fs::perms(0755));
    EXPECT_TRUE(files.createDirectories(folder.file("open/a/b/")));
    EXPECT_EQ(TemporaryFolder::modeOf(folder.file("open")), 0755u);
    EXPECT_EQ(TemporaryFolder::modeOf(folder.file("open/a")), 0700u);
    EXPECT_EQ(TemporaryFolder::modeOf(folder.file("open/a/b")), 0700u);
    EXPECT_TRUE(files.createDirectories(folder.file("open/a/b")));
}

TEST_F(QtFileSystemTest, AFileInTheWayOfAFolderIsReported)
{
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
    EXPECT_FALSE(files.writeFileAtomically(path / u8"naïve.md", "text", Readers::Owner));
    EXPECT_EQ(files.readFile(path / u8"naïve.md", 0), "text");
}

} // namespace cuebright::test
