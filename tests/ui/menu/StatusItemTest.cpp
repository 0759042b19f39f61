#include "ui/menu/StatusItem.h"

#include "platform/system/TrayAvailability.h"
#include "ui/panel/PanelController.h"
#include "ui/panel/PanelFixture.h"

namespace cuebright::test {

class StatusItemTest : public PanelFixture {
protected:
    StatusItemTest() { fake.accessibility.motionReduced = true; }

    /// The titles, with a star before checked ones; separators are empty.
    std::string shown()
    {
        std::string text;
        for (const auto action : item.menu().actions())
            text += (action->isChecked() ? "*" : "") + action->text().toStdString() + "|";
        return text;
    }
    void choose(qsizetype row)
    {
        item.menu().actions().at(row)->trigger();
        refresh();
    }

    PanelController controller {context};
    int quits = 0;
    StatusItem item {context, controller, [this] { ++quits; }};
};

TEST_F(StatusItemTest, TheMenuFollowsPanelAndDecksWithoutBeingOpened)
{
    setCards({"card"});
    EXPECT_EQ(shown(), "Show Cuebright||*Talk||Quit Cuebright|");
    controller.showPanel();
    store.createNewDeck("Q & A\nlast");
    refresh();
    EXPECT_EQ(shown(), "Hide Cuebright||Talk|*Q && A last||Quit Cuebright|");
    controller.hidePanel();
    store.renameDeck("Talk");
    refresh();
    EXPECT_EQ(shown(), "Show Cuebright||Talk|*Talk||Quit Cuebright|");
}

TEST(ExportedMenu, ShowsTitlesAsTheyAre)
{
    // Qt replaces the first "&" by "_", which the tray host reads as a mnemonic.
    EXPECT_EQ(exportedMenuText(u"Q3_review__x"_s), u"Q3__review____x"_s);
    EXPECT_EQ(exportedMenuText(u"Q & A & more"_s), u"Q && A & more"_s);
    EXPECT_EQ(exportedMenuText(u"Q&"_s), u"Q&&"_s);
}

TEST_F(StatusItemTest, ItemsActByTheirPlaceNotTheirName)
{
    setCards({"card"});
    store.createNewDeck("Talk");
    store.switchToDeck(0);
    refresh();
    choose(3);
    EXPECT_EQ(store.activeDeckIndex(), 1);
    choose(3);
    EXPECT_EQ(shown(), "Show Cuebright||Talk|*Talk||Quit Cuebright|") << "choosing the active deck keeps its mark";
    choose(0);
    EXPECT_TRUE(controller.isPanelVisible());
    choose(0);
    EXPECT_FALSE(controller.isPanelVisible());
    choose(5);
    EXPECT_EQ(quits, 1);
}

} // namespace cuebright::test
