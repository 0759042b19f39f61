#include "foundation/WeakTarget.h"

#include <gtest/gtest.h>

namespace cuebright {

TEST(WeakTarget, GuardedWorkRunsOnlyWhileTheTargetLives)
{
    int runs = 0;
    auto target = std::make_unique<WeakTarget>();
    const auto work = target->guard([&] { ++runs; });
    work();
    target.reset();
    work();
    EXPECT_EQ(runs, 1);
}

} // namespace cuebright
