#include "platform/linux/capture/SessionCaptureExclusion.h"

#include "platform/linux/base/DesktopSession.h"

#include <gtest/gtest.h>

#include <tuple>

namespace cuebright::test {

TEST(SessionCaptureExclusion, EachSessionGetsWhatItsCompositorOffers)
{
    using enum CaptureExclusionMethod;
    const std::tuple<const char*, DesktopSession, CaptureExclusionMethod> cases[] = {
        {"Plasma", {true, {"KDE"}, {}, {}}, KWin},
        {"Plasma on X11", {false, {"KDE"}, {}, {}}, NoneAndVisible},
        {"Hyprland", {true, {"Hyprland"}, "abc_1", {}}, Hyprland},
        {"variables of Hyprland in an X11 session", {false, {}, "abc_1", {}}, NoneAndVisible},
        {"GNOME", {true, {"ubuntu", "GNOME"}, {}, {}}, NoneAndVisible},
        {"labwc", {true, {"labwc", "wlroots"}, {}, {}}, NoneAndVisible},
        {"niri", {true, {"niri"}, {}, {}}, NoneAndUnknown},
        {"other Wayland", {true, {"weston"}, {}, {}}, NoneAndUnknown},
        {"nameless Wayland", {true, {}, {}, {}}, NoneAndUnknown},
    };
    for (const auto& [name, session, way] : cases)
        EXPECT_EQ(captureExclusionMethod(session), way) << name;
}

} // namespace cuebright::test
