// Random operations on the real program, each compared with what a plain model of the rules says.
#include "Description.h"
#include "Operations.h"

#include <QApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <deque>
#include <fstream>
#include <numeric>
#include <string>
#include <vector>

#include <malloc.h>

namespace cuebright::soak {

namespace {

constexpr std::size_t kRemembered = 20;
constexpr int kWarmUp = 100'000; ///< steps of a run whose first fifth meets all fonts; not for sanitizers, which hoard
constexpr int kSamples = 20;
constexpr std::size_t kBreath = 5120; ///< KiB: cards and histories of one moment and of another

/// In KiB. Neither what the allocator has back and keeps for later nor what is read from files as it is used, code and
/// libraries, is growth.
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

/// Of the samples in a range; 0 where there are not so many.
std::size_t mean(const std::vector<std::size_t>& samples, int from, int to)
{
    if (std::ssize(samples) < to)
        return 0;
    return std::accumulate(samples.begin() + from, samples.begin() + to, std::size_t {0})
        / static_cast<std::size_t>(to - from);
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
    static const auto kOperations = operations();
    std::vector<const Operation*> lots;
    for (const auto& operation : kOperations) {
        if (operation.canHappen(soak.model))
            lots.insert(lots.end(), static_cast<std::size_t>(operation.weight), &operation);
    }
    return *soak.random.from(lots);
}

/// What differs after the views have taken in what has happened.
QString compare(Program& program, Model& model)
{
    program.settle();
    model.settle();
    // Where the toolkit has put the caret is where the next key works.
    if (const auto editor = program.editor(); editor && !model.editor.isSelectionKnown) {
        const auto range = editor->selectedRange();
        model.editor.select(range.location, range.location + range.length);
    }
    return difference(describe(model), describe(program, model));
}

/// Returns the exit status.
int run(int steps, std::uint64_t seed)
{
    Soak soak {.random = Random(seed)};
    std::deque<std::string> last;
    std::vector<std::size_t> memory;
    for (int step = 1; step <= steps; ++step) {
        forgetRecords(soak.program.fake);
        forgetRecords(soak.model.fake);
        soak.detail.clear();
        const auto& operation = chosenOperation(soak);
        operation.perform(soak);
        last.push_back(std::to_string(step) + ' ' + operation.name + ": " + soak.detail);
        if (last.size() > kRemembered)
            last.pop_front();
        if (const auto different = compare(soak.program, soak.model); !different.isEmpty()) {
            std::printf("The program differs from its rules after\n");
            for (const auto& line : last)
                std::printf("  %.200s\n", line.c_str());
            std::printf("%s\n", qUtf8Printable(different));
            return 1;
        }
        if (step % std::max(steps / kSamples, 1) == 0)
            memory.push_back(memoryInUse());
    }
    const auto early = mean(memory, kSamples / 5, 2 * kSamples / 5);
    const auto late = mean(memory, 4 * kSamples / 5, kSamples);
    const bool grows = steps >= kWarmUp && late > early + kBreath;
    std::printf("No difference. Memory in use: %zu KiB in the second fifth, %zu KiB in the last%s\n", early, late,
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
    qputenv("QT_LOGGING_RULES", "*.warning=false"); // the platform says at every turn what it cannot do
    int programArguments = 1;
    QApplication application(programArguments, argv);
    QApplication::setApplicationName(QStringLiteral("Cuebright"));
    return cuebright::soak::run(steps, seed);
}
