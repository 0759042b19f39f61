#include "platform/linux/KWinCaptureExclusion.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace cuebright::test {

namespace {

using Presence = KWinScripting::Presence;
using State = CaptureExclusion::State;

/// Records the calls; answers when a test says so.
class FakeKWinScripting final : public KWinScripting {
public:
    void start() override { calls.emplace_back("start"); }
    std::string busName() const override { return ":1.7"; }
    void unload(std::string_view plugin, std::function<void(bool)> done) override
    {
        calls.push_back("unload " + std::string(plugin));
        unloaded = std::move(done);
    }
    void load(std::string_view script, std::string_view plugin, std::function<void(std::optional<int>)> done) override
    {
        calls.push_back("load " + std::string(plugin));
        hasOurName = script.find("\":1.7\"") != std::string_view::npos;
        loaded = std::move(done);
    }
    void run(int id, std::function<void(bool)> done) override
    {
        calls.push_back("run " + std::to_string(id));
        ran = std::move(done);
    }

    std::vector<std::string> calls;
    bool hasOurName = false;
    std::function<void(bool)> unloaded;
    std::function<void(std::optional<int>)> loaded;
    std::function<void(bool)> ran;
};

class KWinCaptureExclusionTest : public testing::Test {
protected:
    void findKWin() { kwin->presenceChanged.notify(Presence::Present); }
    void letRun()
    {
        kwin->unloaded(true);
        kwin->loaded(3);
        kwin->ran(true);
    }
    void report(std::string_view word) { kwin->reported.notify(word); }
    void reach(std::string_view word)
    {
        exclusion.start();
        findKWin();
        letRun();
        report(word);
    }
    void expect(State state, bool isSettled = true)
    {
        EXPECT_EQ(std::pair(exclusion.state(), exclusion.isSettled()), std::pair(state, isSettled));
    }
    void reapply()
    {
        exclusion.reapplyIfLost([this] { ++reapplied; });
    }

    FakePlatform platform;
    FakeKWinScripting* kwin = new FakeKWinScripting;
    KWinCaptureExclusion exclusion {std::unique_ptr<KWinScripting>(kwin), platform.mainQueue};
    int changes = 0;
    int reapplied = 0;
    Subscription subscription = exclusion.changed.subscribe([this] { ++changes; });
};

} // namespace

TEST_F(KWinCaptureExclusionTest, TheScriptIsUnloadedLoadedRunAndBelievedOnlyWhenItHasReported)
{
    EXPECT_TRUE(kwin->calls.empty());
    exclusion.start();
    findKWin();
    report("omitted"); // by a copy that was left behind
    letRun();
    EXPECT_EQ(kwin->calls, (std::vector<std::string> {"start", "unload cuebright", "load cuebright", "run 3"}));
    EXPECT_TRUE(kwin->hasOurName);
    expect(State::Unknown, false);
    EXPECT_EQ(changes, 0);
    report("omitted");
    expect(State::Excluded);
    EXPECT_EQ(changes, 1);
    platform.mainQueue.advance(Seconds(10));
    expect(State::Excluded);
}

TEST_F(KWinCaptureExclusionTest, WhatALaterWindowReportsCountsToo)
{
    const std::pair<std::string_view, State> reports[] = {{"refused", State::Visible}, {"omitted", State::Excluded},
        {"unsupported", State::Visible}, {"bananas", State::Unknown}};
    reach("omitted");
    for (const auto& [word, state] : reports) {
        report(word);
        EXPECT_EQ(exclusion.state(), state) << word;
    }
}

TEST_F(KWinCaptureExclusionTest, EveryFailureOnTheWayIsSettledAsUnknown)
{
    const std::pair<const char*, std::function<void()>> cases[] = {
        {"KWin is gone", [this] { kwin->presenceChanged.notify(Presence::Absent); }},
        {"no scripting", [this] { kwin->unloaded(false); }},
        {"no reply", [this] { kwin->unloaded(true), kwin->loaded(std::nullopt); }},
        {"script refused", [this] { kwin->unloaded(true), kwin->loaded(-1); }},
        {"not run", [this] { kwin->unloaded(true), kwin->loaded(0), kwin->ran(false); }},
        {"no report", [this] { letRun(), platform.mainQueue.advance(Seconds(3)); }},
    };
    exclusion.start();
    platform.mainQueue.advance(Seconds(3)); // nobody says whether there is a KWin
    expect(State::Unknown);
    for (const auto& [name, fail] : cases) {
        SCOPED_TRACE(name);
        findKWin();
        expect(State::Unknown, false);
        fail();
        expect(State::Unknown);
    }
    report("omitted"); // the first window came late
    expect(State::Excluded);
}

TEST_F(KWinCaptureExclusionTest, ARestartedCompositorIsAskedAnewAndBelievedOnlyThen)
{
    reach("omitted");
    kwin->calls.clear();
    findKWin();
    const auto lateReply = kwin->unloaded;
    findKWin(); // restarted once more
    lateReply(true);
    report("omitted");
    expect(State::Unknown, false);
    letRun();
    EXPECT_EQ(
        kwin->calls, (std::vector<std::string> {"unload cuebright", "unload cuebright", "load cuebright", "run 3"}));
    report("omitted");
    expect(State::Excluded);
}

TEST_F(KWinCaptureExclusionTest, OnlyALostExclusionIsReappliedAndConfirmedOnce)
{
    reach("refused");
    kwin->calls.clear();
    reapply(); // was never excluded
    report("omitted");
    reapply(); // is excluded
    EXPECT_TRUE(kwin->calls.empty());
    EXPECT_EQ(reapplied, 0);

    report("refused");
    reapply();
    reapply(); // shown again before the answer
    letRun();
    EXPECT_EQ(kwin->calls, (std::vector<std::string> {"unload cuebright", "load cuebright", "run 3"}));
    report("refused");
    EXPECT_EQ(reapplied, 0);
    report("omitted");
    report("omitted");
    EXPECT_EQ(reapplied, 1);
}

} // namespace cuebright::test
