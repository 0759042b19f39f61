#include "theme/Colors.h"

#include <gtest/gtest.h>

namespace cuebright::test {

namespace {

TEST(Colors, FollowTheLookAndTheContrast)
{
    const Colors light(false, false);
    const Colors dark(true, false);
    const Colors highContrast(false, true);
    EXPECT_EQ(light.warmBg(), (Color {0.945, 0.925, 0.902}));
    EXPECT_EQ(dark.warmBg(), (Color {0.145, 0.133, 0.125}));
    EXPECT_EQ(highContrast.warmBg(), light.warmBg());
    EXPECT_LT(highContrast.muted().red, light.muted().red);
    EXPECT_GT(Colors(true, true).muted().red, dark.muted().red);
    EXPECT_GT(highContrast.borderWidth(), light.borderWidth());
}

} // namespace

} // namespace cuebright::test
