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
constexpr int kKillsOfTheProgram = 100;
constexpr int kStepsOfASave = 5;
constexpr microseconds kSeveralSaves {50'000};
constexpr microseconds kBeforeTheSave {200'000}; ///< of the quarter of a second that the program waits with it
constexpr microseconds kAroundTheSave {200'000};

/// Another one each time, unless FAULT_SEED says which.
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

/// What a worker told before its end.
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

/// The number of the save that is in the file; 0 without one, −1 where it is damaged.
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
        // Every second worker is killed at one of the file operations of one of its first saves, the rest by the clock.
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

TEST(Kills, OfTheProgramWhileCardsAreEditedLoseNothingThatWasSaved)
{
    const Home home;
    std::mt19937 random(seed());
    const std::string large(8'000'000, 'x'); // a save takes a while
    home.keepDeck("Talk", {"Start", large});
    std::string expected = "Start";
    std::string position = "Card 1 of 2";
    int withTheLastEdit = 0;

    for (int kill = 0; kill < kKillsOfTheProgram; ++kill) {
        RunningPanel panel(home);
        ASSERT_TRUE(panel.shows(expected)) << "kill " << kill << ", seed " << seed();
        ASSERT_TRUE(panel.shows(position));
        const auto safe = "safe " + std::to_string(kill);
        addCard(panel, safe);
        ASSERT_TRUE(isSaved(home, safe));
        const auto last = "last " + std::to_string(kill);
        addCard(panel, last);
        std::this_thread::sleep_for(kBeforeTheSave);
        sleepUpTo(kAroundTheSave, random);
        panel.send(SIGKILL);
        ASSERT_EQ(panel.exitStatus(), 128 + SIGKILL);

        const auto state = stateIn(home.stateFile());
        ASSERT_TRUE(state) << "damaged by kill " << kill << ", seed " << seed();
        const auto& deck = state->decks.front();
        ASSERT_TRUE(std::ranges::any_of(deck.cards, [&](const Card& card) { return card.content == safe; }));
        ASSERT_EQ(deck.cards[1].content.size(), large.size());
        const auto shown = activeContent(*state);
        expected = shown == safe || shown == last ? shown : "New Card"; // as it was before the text was typed
        position = "Card " + std::to_string(state->activeCardIndex + 1) + " of " + std::to_string(deck.cards.size());
        withTheLastEdit += expected == last;
    }
    report("seed " + std::to_string(seed()) + ", " + std::to_string(kKillsOfTheProgram) + " kills of the program, "
        + std::to_string(withTheLastEdit)
        + " with the last edit in the file; files left behind: " + std::to_string(neighboursOf(home.stateFile())));
    EXPECT_GT(withTheLastEdit, 0);
    EXPECT_LT(withTheLastEdit, kKillsOfTheProgram);
}

} // namespace
} // namespace cuebright::test
