#include "foundation/NotificationCenter.h"

#include <gtest/gtest.h>

namespace cuebright {

TEST(NotificationCenter, ANoticeReachesTheObserversOfItsNameWhichMayObserveAnotherOneMeanwhile)
{
    NotificationCenter center;
    Subscription inner;
    int renames = 0;
    const auto outer = center.observe(
        kTogglePanelNotification, [&] { inner = center.observe(kRenameDeckNotification, [&] { ++renames; }); });
    center.post(kRenameDeckNotification);
    center.post(kTogglePanelNotification);
    center.post("a name that nobody observes");
    EXPECT_EQ(renames, 0);
    center.post(kRenameDeckNotification);
    EXPECT_EQ(renames, 1);
}

} // namespace cuebright
