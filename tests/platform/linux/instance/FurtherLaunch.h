#pragma once

#include "support/EventLoop.h"

#include <gtest/gtest.h>

#include <future>

namespace cuebright::test {

/// The result of `claim` in another thread, while this thread's event loop runs.
template <typename Claim> auto furtherLaunch(Claim claim)
{
    auto outcome = std::async(std::launch::async, claim);
    EXPECT_TRUE(waitUntil([&] { return outcome.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
    return outcome.get();
}

} // namespace cuebright::test
