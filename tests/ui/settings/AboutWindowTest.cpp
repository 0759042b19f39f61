#include "ui/settings/AboutWindow.h"

#include "ui/panel/PanelFixture.h"

namespace cuebright::test {

using AboutWindowTest = PanelFixture;

TEST_F(AboutWindowTest, ItTellsNameVersionAndCredits)
{
    AboutWindow window(context);
    for (const auto text :
        {"Cuebright", "Version 1.0.0 (1)", "Cue cards your audience can’t see.\n\nsupport@cuebright.example.org"})
        EXPECT_TRUE(isShown(window, text)) << text;
}

} // namespace cuebright::test
