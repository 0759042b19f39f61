#include "foundation/NotificationCenter.h"

#include <gtest/gtest.h>

namespace cuebright {

TEST(NotificationCenter, ANoticeReachesOnlyTheObserversOfItsName)
{
    NotificationCenter center;
    int toggles = 0;
    int deletions = 0;
    const auto first = center.observe(kTogglePanelNotification, [&] { ++toggles; });
    const auto second = center.observe(kDeleteCardNotification, [&] { ++deletions; });
    center.post(kTogglePanelNotification);
    center.post("a name that nobody observes");
    EXPECT_EQ(toggles, 1);
    EXPECT_EQ(deletions, 0);
}

TEST(NotificationCenter, AnObserverMayObserveAnotherNameMeanwhile)
{
    NotificationCenter center;
    Subscription inner;
    int renames = 0;
    const auto outer = center.observe(
        kTogglePanelNotification, [&] { inner = center.observe(kRenameDeckNotification, [&] { ++renames; }); });
    center.post(kTogglePanelNotification);
    center.post(kRenameDeckNotification);
    EXPECT_EQ(renames, 1);
}

} // namespace cuebright
