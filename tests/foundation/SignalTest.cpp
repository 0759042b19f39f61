#include "foundation/Signal.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace cuebright {

namespace {

struct SignalTest : testing::Test {
    auto recorder(const char* name)
    {
        return [this, name] { calls.emplace_back(name); };
    }
    std::vector<std::string> calls;
    std::unique_ptr<Signal<>> signal = std::make_unique<Signal<>>();
};

using Calls = std::vector<std::string>;

} // namespace

TEST_F(SignalTest, AListenerEndsWithItsSubscriptionAndMovesWithIt)
{
    {
        const auto subscription = signal->subscribe(recorder("ended"));
    }
    auto first = signal->subscribe(recorder("first"));
    auto second = signal->subscribe(recorder("second"));
    first = std::move(second);
    signal->notify();
    EXPECT_EQ(calls, (Calls {"second"}));
}

TEST_F(SignalTest, AListenerMayEndItselfAndTheNextOneIsStillCalled)
{
    Subscription own;
    own = signal->subscribe([&] {
        calls.emplace_back("own");
        own.end();
    });
    const auto next = signal->subscribe(recorder("next"));
    signal->notify();
    signal->notify();
    EXPECT_EQ(calls, (Calls {"own", "next", "next"}));
}

TEST_F(SignalTest, AListenerAddedDuringANotificationIsCalledFromTheNextOneOn)
{
    std::vector<Subscription> added;
    const auto first = signal->subscribe([&] { added.push_back(signal->subscribe(recorder("added"))); });
    signal->notify();
    EXPECT_EQ(calls, Calls {});
    signal->notify();
    EXPECT_EQ(calls, (Calls {"added"}));
}

TEST_F(SignalTest, DestroyingTheSignalDuringANotificationSilencesTheRest)
{
    const auto first = signal->subscribe([&] { signal.reset(); });
    auto second = signal->subscribe(recorder("second"));
    signal->notify();
    EXPECT_EQ(calls, Calls {});
    second.end(); // a subscription may outlive its signal
}

TEST_F(SignalTest, AListenerMayNotifyAgainAndOneEndedMeanwhileIsNotCalledAnyMore)
{
    Subscription last;
    const auto first = signal->subscribe([&] {
        calls.emplace_back("first");
        if (calls.size() == 1)
            signal->notify();
        else
            last.end();
    });
    const auto second = signal->subscribe(recorder("second"));
    last = signal->subscribe(recorder("last"));
    signal->notify();
    EXPECT_EQ(calls, (Calls {"first", "first", "second", "second"}));
}

} // namespace cuebright
