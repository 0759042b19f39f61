#include "faults/program/StateFileContent.h"

#include <csignal>

#include <sys/mount.h>
#include <unistd.h>

namespace cuebright::test {
namespace {

namespace fs = std::filesystem;

constexpr auto kNotSaved = "Not saved — check disk space";

/// Mounts a small disk on a folder while the object lives.
class SmallDisk final {
public:
    static constexpr std::size_t kSize = 262'144;

    explicit SmallDisk(fs::path folder)
        : m_folder(std::move(folder))
    {
        fs::create_directories(m_folder);
        const auto size = "mode=700,size=" + std::to_string(kSize);
        m_isThere = mount("tmpfs", m_folder.c_str(), "tmpfs", 0, size.c_str()) == 0;
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk()
    {
        if (m_isThere)
            umount2(m_folder.c_str(), MNT_DETACH);
    }

    [[nodiscard]] bool isThere() const { return m_isThere; }
    void fillUpTo(std::uintmax_t room) const
    {
        Home::write(m_folder / "filling", std::string(fs::space(m_folder).available - room, 'x'));
        ASSERT_EQ(fs::space(m_folder).available, room);
    }
    void makeRoom() const { fs::remove(m_folder / "filling"); }

private:
    fs::path m_folder;
    bool m_isThere = false;
};

/// Checks that a failed save is shown, work goes on, and everything is saved after `repair`.
void failToSaveThenSave(const Home& home, const char* reason, const std::function<void()>& repair)
{
    RunningPanel panel(home);
    ASSERT_TRUE(panel.shows("kept"));
    const auto before = readFile(home.stateFile());

    addCard(panel, "first try");
    EXPECT_TRUE(panel.shows(kNotSaved));
    EXPECT_TRUE(panel.console().starts_with("[Cuebright] ERROR: Save failed (1x): ")) << panel.console();
    EXPECT_NE(panel.console().find(reason), std::string::npos) << panel.console();
    addCard(panel, "second try");
    EXPECT_TRUE(panel.shows("second try"));
    EXPECT_TRUE(waitUntil([&] { return panel.console().find("Save failed (2x): ") != std::string::npos; }));
    EXPECT_TRUE(readFile(home.stateFile()) == before) << "the file is not what it was";

    repair();
    addCard(panel, "third try");
    EXPECT_TRUE(panel.showsNoLonger(kNotSaved));
    EXPECT_TRUE(isSaved(home, "third try"));
    panel.send(SIGTERM);
    EXPECT_EQ(panel.exitStatus(), 0);
    const auto after = stateIn(home.stateFile());
    ASSERT_TRUE(after);
    EXPECT_EQ(after->decks.front().cards.size(), 5u);
    EXPECT_EQ(neighboursOf(home.stateFile()), 0);
}

TEST(FullDisk, KeepsTheOldFileAndSavesAgainOnceThereIsRoom)
{
    const std::string filling(100'000, 'x'); // less than half of the disk: old and new file must fit
    const std::uintmax_t rooms[] = {0, 4'096, 65'536};
    for (const auto room : rooms) {
        SCOPED_TRACE(room);
        const Home home;
        const SmallDisk disk(home.stateFolder());
        if (!disk.isThere())
            GTEST_SKIP() << "no permission to mount a small disk";
        home.keepDeck("Talk", {"# kept", filling});
        disk.fillUpTo(room);
        failToSaveThenSave(home, "No space left on device", [&] { disk.makeRoom(); });
    }
    report("3 disks, with room for nothing, for a page and for half of the file");
}

TEST(ReadOnly, KeepsTheOldFileAndTakesAllOfItLater)
{
    const Home home;
    home.keepDeck("Talk", {"# kept", "two"});
    fs::permissions(home.stateFolder(), fs::perms(0555));
    if (access(home.stateFolder().c_str(), W_OK) == 0)
        GTEST_SKIP() << "this user may write everywhere";
    failToSaveThenSave(home, "Permission denied", [&] { fs::permissions(home.stateFolder(), fs::perms(0755)); });
    report("a folder");
}

TEST(FolderDeleted, IsMadeAgainByTheNextSave)
{
    const Home home;
    home.keepDeck("Talk", {"# kept"});
    RunningPanel panel(home);
    const fs::path gone[] = {home.stateFile(), home.stateFolder(), home.stateFolder().parent_path()};
    std::size_t cards = 1;
    const auto holdsAllCards = [&] {
        const auto state = stateIn(home.stateFile());
        return state && state->decks.front().cards.size() == cards && activeContent(*state) == "again";
    };
    for (const auto& path : gone) {
        SCOPED_TRACE(path);
        ASSERT_GT(fs::remove_all(path), 0u);
        addCard(panel, "again");
        ++cards;
        ASSERT_TRUE(waitUntil(holdsAllCards));
    }
    EXPECT_EQ(fs::status(home.stateFolder()).permissions(), fs::perms::owner_all) << "others may look into it";
    fs::remove_all(home.stateFolder());
    panel.send(SIGTERM);
    EXPECT_EQ(panel.exitStatus(), 0);
    EXPECT_EQ(panel.console(), "");
    EXPECT_TRUE(holdsAllCards());
    report("the file, its folder and the folder above, and the folder just before the end");
}

} // namespace
} // namespace cuebright::test
