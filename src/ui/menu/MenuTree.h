#pragma once

#include "ui/menu/Command.h"

#include <QKeySequence>
#include <QList>

#include <optional>
#include <vector>

namespace cuebright {

/// A command, a submenu or, without a title, a separator. Titles are UTF-8, without mnemonics.
struct MenuItem {
    const char* title = nullptr;
    std::optional<Command> command = {};
    QList<QKeySequence> keys = {}; ///< the menu shows the first
    std::vector<MenuItem> items = {}; ///< of the submenu
};

struct Menu {
    const char* title;
    std::vector<MenuItem> items;
};

/// The main menu, from left to right.
[[nodiscard]] std::vector<Menu> mainMenuTree();

} // namespace cuebright
