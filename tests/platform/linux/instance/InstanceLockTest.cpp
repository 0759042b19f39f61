#include "platform/linux/instance/InstanceLock.h"

#include "platform/linux/instance/FurtherLaunch.h"
#include "support/TemporaryFolder.h"

namespace cuebright::test {
namespace {

using namespace std::chrono_literals;

constexpr Seconds kMoment {0.06};

class InstanceLockTest : public testing::Test {
protected:
    const TemporaryFolder folder;
    const std::vector<std::filesystem::path> folders {folder.file("run")};
    std::vector<std::string> tokens; ///< of the requests to show the panel
};

TEST_F(InstanceLockTest, AFurtherLaunchHandsItsTokenToTheFirstImmediatelyOrWhenItAnswers)
{
    ASSERT_EQ(InstanceLock(folders).claim({}), InstanceClaim::Granted);
    ASSERT_TRUE(std::filesystem::exists(folders[0] / "instance")) << "as a crash leaves it behind";
    InstanceLock first(folders);
    ASSERT_EQ(first.claim({}), InstanceClaim::Granted);
    EXPECT_EQ(InstanceLock(folders).claim("early", kMoment), InstanceClaim::Queued);
    first.deliver([this](const RemoteRequest& request) {
        EXPECT_EQ(request.action, RemoteRequest::Action::Activate);
        tokens.push_back(request.token);
    });
    for (const auto* const token : {"token", ""})
        EXPECT_EQ(furtherLaunch([&] { return InstanceLock(folders).claim(token, 5s); }), InstanceClaim::HandedOver);
    EXPECT_EQ(tokens, (std::vector<std::string> {"early", "token", ""}));
}

TEST_F(InstanceLockTest, TheFirstUsableFolderIsTakenForTheUserAlone)
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
