#include "faults/program/StateFileContent.h"

#include <csignal>

#include <sys/stat.h>
#include <unistd.h>

namespace cuebright::test {
namespace {

namespace fs = std::filesystem;

/// Everything about what lies at the path that a start must not change.
std::string traceOf(const fs::path& path)
{
    struct stat status { };
    lstat(path.c_str(), &status);
    return std::to_string(status.st_ino) + ' ' + std::to_string(status.st_mode) + ' '
        + std::to_string(status.st_mtim.tv_sec) + '.' + std::to_string(status.st_mtim.tv_nsec);
}

struct Place {
    const char* name;
    void (*prepare)(const fs::path& stateFile);
    enum class AfterTheEnd { Good, GoodThroughALink, AsItWas } afterTheEnd;
};

TEST(StateFile, OfAnyKindLetsTheProgramStartAndEnd)
{
    using enum Place::AfterTheEnd;
    const Place places[] = {
        {"nothing in it", [](const fs::path& file) { Home::write(file, ""); }, Good},
        {"a program", [](const fs::path& file) { fs::copy_file("/proc/self/exe", file); }, Good},
        {"a pipe", [](const fs::path& file) { mkfifo(file.c_str(), 0600); }, Good},
        {"a folder", [](const fs::path& file) { fs::create_directories(file / "full"); }, AsItWas},
        {"a link to nothing", [](const fs::path& file) { fs::create_symlink("elsewhere", file); }, GoodThroughALink},
        {"a link to nothing in a missing folder", [](const fs::path& file) { fs::create_symlink("no/where", file); },
            AsItWas},
        {"a link to itself", [](const fs::path& file) { fs::create_symlink("state.json", file); }, Good},
        {"a link to a pipe",
            [](const fs::path& file) {
                mkfifo((file.parent_path() / "pipe").c_str(), 0600);
                fs::create_symlink("pipe", file);
            },
            GoodThroughALink},
        {"without permissions",
            [](const fs::path& file) {
                Home::write(file, "{}");
                fs::permissions(file, fs::perms::none);
            },
            Good},
    };
    for (const auto& place : places) {
        SCOPED_TRACE(place.name);
        const Home home;
        fs::create_directories(home.stateFolder());
        place.prepare(home.stateFile());
        const auto before = traceOf(home.stateFile());

        RunningPanel panel(home);
        EXPECT_TRUE(panel.shows("Card 1 of 5"));
        EXPECT_EQ(traceOf(home.stateFile()), before) << "a start changes nothing";
        panel.send(SIGTERM);
        EXPECT_EQ(panel.exitStatus(), 0);

        EXPECT_EQ(stateIn(home.stateFile()).has_value(), place.afterTheEnd != AsItWas);
        EXPECT_EQ(traceOf(home.stateFile()) == before, place.afterTheEnd != Good);
        EXPECT_EQ(panel.console().empty(), place.afterTheEnd != AsItWas) << panel.console();
    }
    report(std::to_string(std::size(places)) + " kinds");
}

} // namespace
} // namespace cuebright::test
