#include "platform/linux/InstanceLock.h"

#include "platform/FurtherLaunch.h"
#include "platform/TemporaryFolder.h"

namespace cuebright::test {
namespace {

using namespace std::chrono_literals;

constexpr auto kMoment = 60ms;

class InstanceLockTest : public testing::Test {
protected:
    const TemporaryFolder folder;
    const std::vector<std::filesystem::path> folders {folder.file("run")};
    std::vector<std::string> tokens; ///< of the requests to show the panel

    void deliver(InstanceLock& lock)
    {
        lock.deliver([this](const RemoteRequest& request) {
            EXPECT_EQ(request.action, RemoteRequest::Action::Activate);
            tokens.push_back(request.token);
        });
    }
    InstanceClaim handOver(const std::string& token) const
    {
        return furtherLaunch([&] { return InstanceLock(folders).claim(token, 5s); });
    }
};

TEST_F(InstanceLockTest, AFurtherLaunchHandsItsTokenToTheFirstAtOnceOrWhenItAnswers)
{
    InstanceLock first(folders);
    ASSERT_EQ(first.claim({}), InstanceClaim::Granted);
    EXPECT_EQ(InstanceLock(folders).claim("early", kMoment), InstanceClaim::Queued);
    deliver(first);
    EXPECT_EQ(handOver("token"), InstanceClaim::HandedOver);
    EXPECT_EQ(handOver({}), InstanceClaim::HandedOver);
    EXPECT_EQ(tokens, (std::vector<std::string> {"early", "token", ""}));
}

TEST_F(InstanceLockTest, WhatACrashLeavesBehindKeepsNobodyOut)
{
    ASSERT_EQ(InstanceLock(folders).claim({}), InstanceClaim::Granted);
    ASSERT_TRUE(std::filesystem::exists(folders[0] / "instance"));
    InstanceLock next(folders);
    EXPECT_EQ(next.claim({}), InstanceClaim::Granted);
    deliver(next);
    EXPECT_EQ(handOver({}), InstanceClaim::HandedOver);
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
