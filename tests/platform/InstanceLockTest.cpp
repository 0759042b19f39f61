#include "platform/linux/InstanceLock.h"

#include "platform/TemporaryFolder.h"
#include "support/EventLoop.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace cuebright::test {
namespace {

using namespace std::chrono_literals;

constexpr auto kMoment = 60ms;

class InstanceLockTest : public testing::Test {
protected:
    const TemporaryFolder folder;
    const std::vector<std::filesystem::path> folders {folder.file("run")};
    std::vector<RemoteRequest> requests;

    void deliver(InstanceLock& lock)
    {
        lock.deliver([this](const RemoteRequest& request) { requests.push_back(request); });
    }

    /// From a thread of its own, as from a process of its own, while the event loop of the first one runs.
    InstanceClaim furtherLaunch(const std::string& token) const
    {
        std::atomic<bool> hasEnded = false;
        auto outcome = InstanceClaim::Unavailable;
        std::thread launch([&] {
            outcome = InstanceLock(folders).claim(token, 5s);
            hasEnded = true;
        });
        EXPECT_TRUE(waitUntil([&] { return hasEnded.load(); }));
        launch.join();
        return outcome;
    }
};

TEST_F(InstanceLockTest, AFurtherLaunchHandsItsTokenToTheFirst)
{
    InstanceLock first(folders);
    ASSERT_EQ(first.claim({}), InstanceClaim::Granted);
    deliver(first);
    EXPECT_EQ(furtherLaunch("token"), InstanceClaim::HandedOver);
    EXPECT_EQ(furtherLaunch({}), InstanceClaim::HandedOver);
    EXPECT_EQ(requests, (std::vector<RemoteRequest> {{RemoteRequest::Action::Activate, "token"}, {}}));
}

TEST_F(InstanceLockTest, ARequestToOneThatDoesNotAnswerWaitsForIt)
{
    InstanceLock first(folders);
    ASSERT_EQ(first.claim({}), InstanceClaim::Granted);
    EXPECT_EQ(InstanceLock(folders).claim("late", kMoment), InstanceClaim::Queued);
    deliver(first);
    EXPECT_EQ(requests, (std::vector<RemoteRequest> {{RemoteRequest::Action::Activate, "late"}}));
}

TEST_F(InstanceLockTest, WhatACrashLeavesBehindKeepsNobodyOut)
{
    ASSERT_EQ(InstanceLock(folders).claim({}), InstanceClaim::Granted);
    ASSERT_TRUE(std::filesystem::exists(folders[0] / "instance"));
    InstanceLock next(folders);
    EXPECT_EQ(next.claim({}), InstanceClaim::Granted);
    deliver(next);
    EXPECT_EQ(furtherLaunch({}), InstanceClaim::HandedOver);
}

TEST_F(InstanceLockTest, TheFirstFolderThatCanBeHadIsTakenForTheUserAlone)
{
    const auto blocked = folder.write("file", "") / "run";
    const auto deep = folder.file(std::string(120, 'x')) / "run"; // longer than the address of a socket
    EXPECT_EQ(InstanceLock({blocked}).claim({}), InstanceClaim::Unavailable);
    InstanceLock first({blocked, deep});
    EXPECT_EQ(first.claim({}), InstanceClaim::Granted);
    EXPECT_EQ(TemporaryFolder::modeOf(deep), 0700U);
    EXPECT_EQ(InstanceLock({deep}).claim({}, kMoment), InstanceClaim::Queued);
}

} // namespace
} // namespace cuebright::test
