#include "platform/linux/x11/StartupNotification.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace cuebright::test {
namespace {

TEST(StartupNotification, IdsCarryTheTimeOfTheLaunch)
{
    const std::vector<std::pair<const char*, std::uint32_t>> cases {{"shell-12-host-panel-3_TIME81234", 81234U},
        {"a_TIME1_TIME2", 2U}, {"", 0U}, {"_TIME", 0U}, {"x_TIME12b", 0U}, {"x_TIME99999999999", 0U}, {"token", 0U}};
    for (const auto& [id, time] : cases)
        EXPECT_EQ(startupTime(id), time) << id;
    EXPECT_EQ(startupEndMessage(R"(a"b\c d)"), R"(remove: ID="a\"b\\c d")");
}

} // namespace
} // namespace cuebright::test
