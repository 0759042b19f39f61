#include "ui/settings/WindowPlacement.h"

#include <gtest/gtest.h>

namespace cuebright::test {

TEST(WindowPlacement, AWindowGoesBesideThePanelWhereThereIsRoom)
{
    constexpr QSize kSize {460, 500};
    constexpr QRect kScreen {0, 30, 1600, 870};
    struct Case {
        const char* name;
        QRect panel;
        QRect screen;
        QPoint expected;
    };
    const Case cases[] = {
        {"to the right", {100, 100, 500, 400}, kScreen, {612, 100}},
        {"else to the left", {629, 100, 500, 400}, kScreen, {157, 100}},
        {"else in the middle", {471, 100, 700, 400}, kScreen, {570, 215}},
        {"not over the lower edge", {100, 700, 500, 400}, kScreen, {612, 400}},
        {"not over the upper edge", {100, -50, 500, 400}, kScreen, {612, 30}},
        {"on a second screen", {-1000, 100, 500, 400}, {-1280, 0, 1280, 1024}, {-488, 100}},
        {"a screen too small shows the title bar", {0, 0, 300, 200}, {0, 20, 400, 300}, {0, 20}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(placeBeside(c.panel, kSize, c.screen), QRect(c.expected, kSize)) << c.name;
}

} // namespace cuebright::test
