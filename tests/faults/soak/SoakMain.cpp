// Random operations on the real program; rules that must hold are checked after each of them.
#include "Operations.h"

#include <QApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cstdio>
#include <deque>
#include <fstream>
#include <string>
#include <vector>

#include <malloc.h>

namespace cuebright::soak {

namespace {

constexpr std::size_t kRemembered = 20;
constexpr int kWarmUp = 100'000; ///< steps of a run long enough for its memory to be compared
constexpr int kSamples = 20;
constexpr std::size_t kTolerance = 5120; ///< KiB: cards and undo steps vary that much

/// Anonymous memory in KiB, without what the allocator keeps for later use and without mapped files.
std::size_t memoryInUse()
{
    malloc_trim(0);
    std::ifstream status("/proc/self/status"); // proc(5)
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("RssAnon:"))
            return std::stoul(line.substr(8));
    }
    return 0;
}

void forgetRecords(test::FakePlatform& fake)
{
    fake.fileSystem.writes.clear();
    fake.fileSystem.createdDirectories.clear();
    fake.preferences.writes.clear();
    fake.log.lines.clear();
    fake.windowSystem.calls.clear();
    fake.hotKeys.keys.clear();
    fake.appearance.choices.clear();
}

const Operation& chosenOperation(Soak& soak)
{
    std::vector<const Operation*> lots;
    for (const auto& operation : operations()) {
        if (operation.isPossible(soak.program))
            lots.insert(lots.end(), static_cast<std::size_t>(operation.weight), &operation);
    }
    return *soak.random.from(lots);
}

/// Performs one operation; returns what is wrong afterwards, or nothing.
std::string step(Soak& soak, const Operation& operation)
{
    soak.detail.clear();
    const Texts before(soak.program.store());
    const auto allowed = operation.perform(soak);
    soak.program.settle();
    if (const auto lost = lostText(before, Texts(soak.program.store()), allowed); !lost.empty())
        return "lost: " + lost;
    return soak.complaint.empty() ? brokenRule(soak.program) : soak.complaint;
}

/// Returns the exit status.
int run(int steps, std::uint64_t seed)
{
    Soak soak {.random = Random(seed)};
    std::deque<std::string> last;
    std::array<std::size_t, 5> memory {}; ///< in use: sums over each fifth of the run
    for (int number = 1; number <= steps; ++number) {
        forgetRecords(soak.program.fake);
        const auto& operation = chosenOperation(soak);
        const auto wrong = step(soak, operation);
        last.push_back(std::to_string(number) + ' ' + operation.name + ": " + soak.detail);
        if (last.size() > kRemembered)
            last.pop_front();
        if (!wrong.empty()) {
            std::printf("%s; after\n", wrong.c_str());
            for (const auto& line : last)
                std::printf("  %.200s\n", line.c_str());
            return 1;
        }
        if (number % std::max(steps / kSamples, 1) == 0)
            memory[static_cast<std::size_t>((number - 1) * 5LL / steps)] += memoryInUse();
    }
    const auto early = memory[1] * 5 / kSamples;
    const auto late = memory[4] * 5 / kSamples;
    const bool grows = steps >= kWarmUp && late > early + kTolerance;
    std::printf("All rules hold. Memory in use: %zu KiB in the second fifth, %zu KiB in the last%s\n", early, late,
        grows ? ": it grows" : "");
    return grows ? 1 : 0;
}

} // namespace

} // namespace cuebright::soak

int main(int argc, char* argv[])
{
    int steps = 100'000;
    std::uint64_t seed = std::random_device()();
    for (int i = 1; i + 1 < argc; i += 2) {
        if (argv[i] == std::string("--steps"))
            steps = std::stoi(argv[i + 1]);
        else if (argv[i] == std::string("--seed"))
            seed = std::stoull(argv[i + 1]);
    }
    std::printf("--steps %d --seed %llu\n", steps, static_cast<unsigned long long>(seed));
    const QTemporaryDir home;
    for (const char* folder : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})
        qputenv(folder, home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*.warning=false"); // the offscreen platform warns all the time
    int programArguments = 1;
    QApplication application(programArguments, argv);
    QApplication::setApplicationName(QStringLiteral("Cuebright"));
    return cuebright::soak::run(steps, seed);
}
