#include "foundation/NotificationCenter.h"

#include <gtest/gtest.h>

namespace cuebright {

TEST(NotificationCenter, ANoticeReachesTheObserversOfItsNameWhichMayObserveAnotherOneMeanwhile)
{
    NotificationCenter center;
    Subscription inner;
    int renames = 0;
    const auto outer = center.observe("one", [&] { inner = center.observe("other", [&] { ++renames; }); });
    center.post("other");
    center.post("one");
    center.post("a name that nobody observes");
    EXPECT_EQ(renames, 0);
    center.post("other");
    EXPECT_EQ(renames, 1);
}

} // namespace cuebright
