#include "ui/menu/MenuTree.h"

#include "ui/panel/PanelKeys.h"

#include <QKeyEvent>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace cuebright::test {

namespace {

/// All items that are commands, submenus included.
void collect(const std::vector<MenuItem>& items, std::vector<MenuItem>& found)
{
    for (const auto& item : items) {
        if (item.command)
            found.push_back(item);
        collect(item.items, found);
    }
}

std::vector<MenuItem> commandItems()
{
    std::vector<MenuItem> found;
    for (const auto& menu : mainMenuTree())
        collect(menu.items, found);
    return found;
}

bool isTakenByPanel(const QKeySequence& key)
{
    const QKeyEvent press(QEvent::KeyPress, key[0].key(), key[0].keyboardModifiers());
    return panelKeyAction(press, PanelState::Reading) || panelKeyAction(press, PanelState::Editing);
}

} // namespace

TEST(MenuTree, OffersEveryCommandOnce)
{
    std::set<Command> commands;
    const auto items = commandItems();
    for (const auto& item : items)
        commands.insert(*item.command);
    EXPECT_EQ(items.size(), commands.size());
    EXPECT_EQ(commands.size(), static_cast<std::size_t>(Command::EmailSupport) + 1);
}

TEST(MenuTree, NoKeyHasTwoMeaningsButThoseOfThePanel)
{
    std::set<QString> keys;
    std::vector<std::string> shared;
    for (const auto& item : commandItems()) {
        for (const auto& key : item.keys) {
            EXPECT_TRUE(keys.insert(key.toString()).second) << item.title;
            if (isTakenByPanel(key))
                shared.emplace_back(item.title);
        }
    }
    EXPECT_EQ(shared, (std::vector<std::string> {"Undo", "Redo", "Save Card", "Cancel Edit", "Show Cuebright"}));
}

} // namespace cuebright::test
