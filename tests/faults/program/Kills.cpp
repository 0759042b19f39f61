#include "faults/program/StateFileContent.h"

#include <algorithm>
#include <cstdlib>
#include <random>
#include <sstream>
#include <thread>

namespace cuebright::test {
namespace {

namespace fs = std::filesystem;
using std::chrono::microseconds;

constexpr int kKillsDuringASave = 1000;
constexpr int kStepsOfASave = 5;
constexpr microseconds kSeveralSaves {50'000};

/// Random, unless FAULT_SEED is set.
unsigned seed()
{
    static const char* const given = std::getenv("FAULT_SEED");
    static const unsigned seed = given ? static_cast<unsigned>(std::stoul(given)) : std::random_device()();
    return seed;
}

void sleepUpTo(microseconds longest, std::mt19937& random)
{
    std::this_thread::sleep_for(
        microseconds(std::uniform_int_distribution<>(0, static_cast<int>(longest.count()))(random)));
}

/// A worker's output.
struct Told {
    std::int64_t found = 0;
    std::int64_t begun = 0;
    std::int64_t saved = 0;

    explicit Told(const std::string& output)
    {
        std::istringstream lines(output.substr(0, output.rfind('\n') + 1));
        std::string what;
        std::int64_t number = 0;
        while (lines >> what >> number)
            (what == "found" ? found : what == "begun" ? begun : saved) = number;
    }
};

/// The number of the save in the file; 0 without a file, −1 if it is damaged.
std::int64_t numberIn(const fs::path& stateFile)
{
    if (!fs::exists(stateFile))
        return 0;
    const auto state = stateIn(stateFile);
    if (!state)
        return -1;
    std::int64_t number = 0;
    std::size_t size = 0;
    char blank = 0;
    std::string filling;
    std::istringstream(activeContent(*state)) >> number >> size >> std::noskipws >> blank >> filling;
    return filling.size() == size && filling.find_first_not_of('x') == std::string::npos ? number : -1;
}

TEST(Kills, DuringASaveLeaveTheFileWholeAndNeverOlderThanTheLastFinishedSave)
{
    const Home home;
    std::mt19937 random(seed());
    int kills = 0;
    int atAStep = 0;
    int leftBehind = 0;
    int stepKillsThatLeft = 0;
    int newerThanSaved = 0;
    std::int64_t inFile = 0;
    for (int duringASave = 0; duringASave < kKillsDuringASave; ++kills) {
        // Every second worker is killed at a file operation of its first saves, the others after a random time.
        const int step = kills % 2 ? 1 + kills / 2 % (3 * kStepsOfASave) : 0;
        const auto before = fs::exists(home.stateFile()) ? neighboursOf(home.stateFile()) : 0;
        fs::remove(home.console());
        Process worker({{SAVING_WORKER, std::to_string(random()), std::to_string(step)}, home.environment({}),
            home.console(), {}, SIGKILL});
        (void)worker.firstLine();
        if (step == 0) {
            sleepUpTo(kSeveralSaves, random);
            worker.send(SIGKILL);
        }
        ASSERT_EQ(worker.exitStatus(), 128 + SIGKILL) << worker.output();

        const Told told(worker.output());
        ASSERT_EQ(told.found, inFile) << "a start did not find what was in the file, seed " << seed();
        if (told.begun == 0)
            continue;
        const auto number = numberIn(home.stateFile());
        ASSERT_GE(number, std::max(told.saved, inFile)) << "damaged or old, seed " << seed() << " kill " << kills;
        ASSERT_LE(number, told.begun);
        inFile = number;
        const int left = neighboursOf(home.stateFile()) - before;
        ASSERT_LE(left, 1) << "seed " << seed() << " kill " << kills;
        duringASave += told.begun > told.saved;
        newerThanSaved += number > told.saved;
        atAStep += step != 0;
        (step ? stepKillsThatLeft : leftBehind) += left;
    }
    report("seed " + std::to_string(seed()) + ", " + std::to_string(kills) + " kills, "
        + std::to_string(kKillsDuringASave) + " of them during a save, " + std::to_string(atAStep)
        + " before a chosen file operation; " + std::to_string(inFile) + " saves; the interrupted save was in the file "
        + std::to_string(newerThanSaved) + " times; files left behind: " + std::to_string(leftBehind)
        + " by random kills, " + std::to_string(stepKillsThatLeft) + " by chosen ones");
    EXPECT_GT(newerThanSaved, 0) << "no kill after the rename";
    EXPECT_LT(newerThanSaved, kKillsDuringASave) << "no kill before the rename";
}

} // namespace
} // namespace cuebright::test
