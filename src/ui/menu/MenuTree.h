#pragma once

#include "ui/menu/Command.h"

#include <QKeySequence>
#include <QList>

#include <optional>
#include <vector>

namespace cuebright {

/// One line of a menu: a command, a submenu, or, without a title, a separator. Titles are UTF-8, as they show.
struct MenuItem {
    const char* title = nullptr;
    std::optional<Command> command = {};
    QList<QKeySequence> keys = {}; ///< the first is the one shown
    std::vector<MenuItem> items = {}; ///< of a submenu
};

struct Menu {
    const char* title;
    std::vector<MenuItem> items;
};

/// The main menu, from left to right.
[[nodiscard]] std::vector<Menu> mainMenuTree();

} // namespace cuebright
