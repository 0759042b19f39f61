#include "platform/qt/QtFileSystem.h"
#include "store/CardStore.h"
#include "support/FakePlatform.h"

#include <charconv>
#include <cmath>
#include <csignal>
#include <random>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

// saving_worker SEED STEP: saves to disk in a loop until it is killed. The only card holds the number of
// its save and its length, from a few bytes to 4 MB. Prints a line before and after each save.
//
// Kills itself before the STEP-th call that writes a file; never if STEP is 0.

namespace {

int stepsLeft = 0;

void takeStep()
{
    if (stepsLeft > 0 && --stepsLeft == 0)
        kill(getpid(), SIGKILL);
}

void tell(const char* what, std::int64_t number)
{
    const auto line = what + std::to_string(number) + "\n";
    if (write(STDOUT_FILENO, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
        _exit(2);
}

} // namespace

// Replaces the C library's functions, also for Qt.
extern "C" {

int fsync(int file)
{
    takeStep();
    return static_cast<int>(syscall(SYS_fsync, file));
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept
{
    takeStep();
    return static_cast<int>(syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
}

int rename(const char* from, const char* to) noexcept
{
    takeStep();
    return static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}
}

int main(int, char* argv[])
{
    using namespace cuebright;
    std::mt19937_64 random(std::stoull(argv[1]));
    std::uniform_real_distribution<> decimals(0, std::log10(4e6)); // small sizes as often as large ones

    test::FakePlatform fake;
    QtFileSystem disk;
    auto services = fake.platform();
    CardStore store({services.clock, services.uuids, services.mainQueue, disk, services.preferences,
        services.accessibility, services.appearance, services.log});
    while (store.deckCount() > 1)
        store.deleteActiveDeck();
    while (store.cardCount() > 1)
        store.deleteCard();

    std::int64_t number = 0;
    const auto& found = store.activeCard()->content;
    std::from_chars(found.data(), found.data() + found.size(), number);
    tell("found ", number);
    stepsLeft = std::stoi(argv[2]);
    for (;;) {
        const auto size = static_cast<std::size_t>(std::pow(10, decimals(random)));
        store.beginEditing();
        store.setEditText(std::to_string(++number) + ' ' + std::to_string(size) + ' ' + std::string(size, 'x'));
        store.saveEdit();
        tell("begun ", number);
        store.flushToDisk();
        if (!fake.log.lines.empty())
            return 1;
        tell("saved ", number);
    }
}
