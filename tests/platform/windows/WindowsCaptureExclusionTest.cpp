#include "platform/windows/capture/WindowsCaptureExclusion.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <tuple>
#include <vector>

namespace cuebright::test {

namespace {

using State = CaptureExclusion::State;
using Window = WindowSystem::WindowId;

constexpr auto kNone = DisplayAffinity::kNone;
constexpr auto kMonitor = DisplayAffinity::kMonitor;
constexpr auto kExclude = DisplayAffinity::kExcludeFromCapture;
constexpr Window kPanel = 1;
constexpr Window kMenu = 2;

struct FakeDisplayAffinity final : DisplayAffinity {
    bool setAffinity(Window window, std::uint32_t value) override
    {
        sets.emplace_back(window, value);
        if (refused.contains(window))
            return false;
        values[window] = value;
        return true;
    }
    std::optional<std::uint32_t> affinity(Window window) override
    {
        return silent.contains(window) ? std::nullopt : std::optional(values[window]);
    }
    std::uint32_t buildNumber() override { return build; }
    bool isRemoteSession() override { return isRemote; }

    std::uint32_t build = 22631;
    bool isRemote = false;
    std::set<Window> refused;
    std::set<Window> silent; ///< of which the affinity cannot be read
    std::map<Window, std::uint32_t> values;
    std::vector<std::pair<Window, std::uint32_t>> sets;
};

class WindowsCaptureExclusionTest : public testing::Test {
protected:
    int reappliedOnShow()
    {
        int count = 0;
        const auto reapplied = exclusion.reapplied.subscribe([&] {
            EXPECT_EQ(affinity.values[kPanel], kExclude) << "reported before it was done";
            ++count;
        });
        exclusion.reapplyIfLost();
        return count;
    }

    FakeDisplayAffinity affinity;
    WindowsCaptureExclusion exclusion {affinity};
    std::vector<State> told;
    Subscription subscription = exclusion.changed.subscribe([this] { told.push_back(exclusion.state()); });
};

enum class Answer { Yes, Refused, Silent };

TEST(WindowsCaptureExclusion, AsksForTheBestAndBelievesOnlyWhatIsReadBack)
{
    using Set = std::optional<std::uint32_t>;
    constexpr std::uint32_t kNew = 22631;
    constexpr std::uint32_t kOld = 18363;
    const std::tuple<const char*, std::uint32_t, bool, std::uint32_t, Answer, State, Set> rows[] = {
        {"the first build that can exclude", 19041, false, kNone, Answer::Yes, State::Excluded, kExclude},
        {"the last build that cannot", 19040, false, kNone, Answer::Yes, State::Blackout, kMonitor},
        {"an unknown build", 0, false, kNone, Answer::Yes, State::Blackout, kMonitor},
        {"excluded already", kNew, false, kExclude, Answer::Yes, State::Excluded, {}},
        {"a black box already, on an old build", kOld, false, kMonitor, Answer::Yes, State::Blackout, {}},
        {"refused", kNew, false, kNone, Answer::Refused, State::Visible, kExclude},
        {"no answer", kNew, false, kNone, Answer::Silent, State::Unknown, kExclude},
        {"an affinity of the future", kNew, false, 0x40, Answer::Refused, State::Unknown, kExclude},
        {"a remote desktop", kNew, true, kNone, Answer::Yes, State::Visible, {}},
        {"excluded before the remote desktop came", kNew, true, kExclude, Answer::Yes, State::Visible, kNone},
    };
    for (const auto& [name, build, isRemote, before, answer, expected, set] : rows) {
        SCOPED_TRACE(name);
        FakeDisplayAffinity affinity;
        affinity.build = build;
        affinity.isRemote = isRemote;
        affinity.values[kPanel] = before;
        if (answer != Answer::Yes)
            (answer == Answer::Refused ? affinity.refused : affinity.silent).insert(kPanel);
        WindowsCaptureExclusion exclusion(affinity);
        EXPECT_EQ(std::pair(exclusion.state(), exclusion.isSettled()), std::pair(State::Unknown, false));
        int changes = 0;
        const auto subscription = exclusion.changed.subscribe([&] { ++changes; });
        exclusion.windowAppears(kPanel);
        EXPECT_EQ(std::pair(exclusion.state(), exclusion.isSettled()), std::pair(expected, true));
        EXPECT_EQ(changes, 1) << "also without an answer";
        EXPECT_EQ(affinity.sets.size(), set ? 1U : 0U);
        for (const auto& [window, value] : affinity.sets)
            EXPECT_EQ(value, set);
    }
}

TEST_F(WindowsCaptureExclusionTest, TheWorstWindowCountsAndOnlyChangesAreNotified)
{
    exclusion.windowAppears(kPanel);
    affinity.values[kPanel] = kNone; // lost while it was hidden
    exclusion.windowAppears(kPanel);
    EXPECT_EQ(affinity.sets, std::vector(2, std::pair(kPanel, kExclude)));
    affinity.refused = {kMenu};
    const std::pair<std::uint32_t, std::set<Window>> menus[] = {{kMonitor, {}}, {kNone, {kMenu}}, {kNone, {}}};
    for (const auto& [value, silent] : menus) {
        affinity.values[kMenu] = value;
        affinity.silent = silent;
        exclusion.windowAppears(kMenu);
        exclusion.windowGoes(kMenu);
    }
    affinity.silent = {kPanel};
    exclusion.windowAppears(kMenu); // the panel is unknown, the menu visible
    using enum CaptureExclusion::State;
    EXPECT_EQ(told, (std::vector {Excluded, Blackout, Excluded, Unknown, Excluded, Visible, Excluded, Visible}));
}

TEST_F(WindowsCaptureExclusionTest, ReportsALossOnceItIsRepairedAndOnlyThen)
{
    affinity.refused = {kPanel};
    exclusion.windowAppears(kPanel);
    affinity.refused.clear();
    EXPECT_EQ(reappliedOnShow(), 0) << "never excluded before";
    EXPECT_EQ(exclusion.state(), State::Excluded);
    affinity.values[kPanel] = kNone;
    affinity.refused = {kPanel};
    EXPECT_EQ(reappliedOnShow(), 0) << "the repair fails";
    EXPECT_EQ(exclusion.state(), State::Visible) << "before a show repairs it";
    affinity.refused.clear();
    EXPECT_EQ(reappliedOnShow(), 1);
    EXPECT_EQ(reappliedOnShow(), 0) << "reported before";
    affinity.isRemote = true; // its user must see the panel
    exclusion.sessionChanged();
    EXPECT_EQ(affinity.values[kPanel], kNone);
    affinity.isRemote = false;
    exclusion.sessionChanged();
    EXPECT_EQ(exclusion.state(), State::Excluded);
}

} // namespace

} // namespace cuebright::test
