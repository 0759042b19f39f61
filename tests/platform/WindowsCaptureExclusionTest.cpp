#include "platform/windows/WindowsCaptureExclusion.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
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
    std::set<Window> silent; ///< answers nothing about these
    std::map<Window, std::uint32_t> values;
    std::vector<std::pair<Window, std::uint32_t>> sets;
};

class WindowsCaptureExclusionTest : public testing::Test {
protected:
    int reappliedOnShow()
    {
        int count = 0;
        exclusion.reapplyIfLost([&] {
            EXPECT_EQ(affinity.values[kPanel], kExclude) << "reported before it was done";
            ++count;
        });
        return count;
    }

    FakeDisplayAffinity affinity;
    WindowsCaptureExclusion exclusion {affinity};
};

struct Row {
    const char* name;
    std::uint32_t build;
    bool isRemote;
    std::uint32_t before;
    bool isRefused;
    bool isSilent;
    State expected;
    std::vector<std::pair<Window, std::uint32_t>> sets;
};

const Row kRows[] = {
    {"the first build that can exclude", 19041, false, kNone, false, false, State::Excluded, {{kPanel, kExclude}}},
    {"the last build that cannot", 19040, false, kNone, false, false, State::Blackout, {{kPanel, kMonitor}}},
    {"an unknown build", 0, false, kNone, false, false, State::Blackout, {{kPanel, kMonitor}}},
    {"excluded already", 22631, false, kExclude, false, false, State::Excluded, {}},
    {"a black box already, on an old build", 18363, false, kMonitor, false, false, State::Blackout, {}},
    {"excluded in name only, on an old build", 18363, false, kExclude, true, false, State::Blackout,
        {{kPanel, kMonitor}}},
    {"a black box where excluding is refused", 22631, false, kMonitor, true, false, State::Blackout,
        {{kPanel, kExclude}}},
    {"refused", 22631, false, kNone, true, false, State::Visible, {{kPanel, kExclude}}},
    {"no answer", 22631, false, kNone, false, true, State::Unknown, {{kPanel, kExclude}}},
    {"an affinity of the future", 22631, false, 0x40, true, false, State::Unknown, {{kPanel, kExclude}}},
    {"a remote desktop", 22631, true, kNone, false, false, State::Visible, {}},
    {"excluded before the remote desktop came", 22631, true, kExclude, false, false, State::Visible, {{kPanel, kNone}}},
};

TEST(WindowsCaptureExclusion, AsksForTheBestAndBelievesOnlyWhatIsReadBack)
{
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.name);
        FakeDisplayAffinity affinity;
        affinity.build = row.build;
        affinity.isRemote = row.isRemote;
        affinity.values[kPanel] = row.before;
        if (row.isRefused)
            affinity.refused = {kPanel};
        if (row.isSilent)
            affinity.silent = {kPanel};
        WindowsCaptureExclusion exclusion(affinity);
        exclusion.windowAppears(kPanel);
        EXPECT_EQ(exclusion.state(), row.expected);
        EXPECT_TRUE(exclusion.isSettled());
        EXPECT_EQ(affinity.sets, row.sets);
    }
}

TEST_F(WindowsCaptureExclusionTest, IsUnsettledUntilTheFirstWindow)
{
    EXPECT_EQ(exclusion.state(), State::Unknown);
    EXPECT_FALSE(exclusion.isSettled());
    affinity.silent = {kPanel};
    int changes = 0;
    const auto subscription = exclusion.changed.subscribe([&] { ++changes; });
    exclusion.windowAppears(kPanel);
    EXPECT_EQ(exclusion.state(), State::Unknown);
    EXPECT_TRUE(exclusion.isSettled());
    EXPECT_EQ(changes, 1) << "settled without an answer";
}

TEST_F(WindowsCaptureExclusionTest, TheWorstWindowCountsAsLongAsItIsThere)
{
    exclusion.windowAppears(kPanel);
    const struct {
        std::uint32_t menu;
        bool isSilent;
        State expected;
    } rows[] = {
        {kMonitor, false, State::Blackout},
        {kNone, true, State::Unknown},
        {kNone, false, State::Visible},
    };
    for (const auto& row : rows) {
        affinity.refused = {kMenu};
        affinity.values[kMenu] = row.menu;
        affinity.silent = row.isSilent ? std::set {kMenu} : std::set<Window> {};
        exclusion.windowAppears(kMenu);
        EXPECT_EQ(exclusion.state(), row.expected);
        exclusion.windowGoes(kMenu);
        EXPECT_EQ(exclusion.state(), State::Excluded);
    }
    // Whatever is unknown of one window, another one is seen for certain.
    affinity.refused = {kMenu};
    affinity.silent = {kPanel};
    affinity.values[kMenu] = kNone;
    exclusion.windowAppears(kMenu);
    EXPECT_EQ(exclusion.state(), State::Visible);
}

TEST_F(WindowsCaptureExclusionTest, ChangesAreToldOnceAndOnlyWhenThereAreAny)
{
    std::vector<State> told;
    const auto subscription = exclusion.changed.subscribe([&] { told.push_back(exclusion.state()); });
    exclusion.windowAppears(kPanel);
    exclusion.windowAppears(kPanel);
    affinity.refused = {kMenu};
    exclusion.windowAppears(kMenu);
    exclusion.windowGoes(kMenu);
    EXPECT_EQ(told, (std::vector {State::Excluded, State::Visible, State::Excluded}));
}

TEST_F(WindowsCaptureExclusionTest, EachShowSetsAgainWhatHidingLost)
{
    exclusion.windowAppears(kPanel);
    exclusion.windowAppears(kMenu);
    affinity.values[kPanel] = kNone;
    affinity.sets.clear();
    exclusion.windowAppears(kPanel);
    exclusion.windowAppears(kMenu);
    EXPECT_EQ(affinity.sets, (std::vector {std::pair {kPanel, kExclude}}));
    EXPECT_EQ(exclusion.state(), State::Excluded);
}

TEST_F(WindowsCaptureExclusionTest, ReportsALossOnceItIsRepaired)
{
    exclusion.windowAppears(kPanel);
    EXPECT_EQ(reappliedOnShow(), 0) << "nothing was lost";
    affinity.values[kPanel] = kNone;
    EXPECT_EQ(exclusion.state(), State::Visible) << "before the show repairs it";
    EXPECT_EQ(reappliedOnShow(), 1);
    EXPECT_EQ(reappliedOnShow(), 0) << "reported before";
}

TEST_F(WindowsCaptureExclusionTest, ReportsNoRepairThatFails)
{
    exclusion.windowAppears(kPanel);
    affinity.values[kPanel] = kNone;
    affinity.refused = {kPanel};
    EXPECT_EQ(reappliedOnShow(), 0);
    EXPECT_EQ(exclusion.state(), State::Visible);
}

TEST_F(WindowsCaptureExclusionTest, WhatWasNeverExcludedIsNotReportedAsLost)
{
    affinity.refused = {kPanel};
    exclusion.windowAppears(kPanel);
    affinity.refused.clear();
    EXPECT_EQ(reappliedOnShow(), 0);
    EXPECT_EQ(exclusion.state(), State::Excluded);
}

TEST_F(WindowsCaptureExclusionTest, ARemoteDesktopShowsTheWindowsToTheirUserAndItsEndHidesThemAgain)
{
    exclusion.windowAppears(kPanel);
    affinity.isRemote = true;
    exclusion.sessionChanged();
    EXPECT_EQ(affinity.values[kPanel], kNone);
    EXPECT_EQ(exclusion.state(), State::Visible);
    EXPECT_EQ(reappliedOnShow(), 0);
    affinity.isRemote = false;
    exclusion.sessionChanged();
    EXPECT_EQ(exclusion.state(), State::Excluded);
}

} // namespace

} // namespace cuebright::test
