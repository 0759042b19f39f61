#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace cuebright {

class CardStore;

/// One entry of the status item's menu.
struct StatusMenuItem {
    enum class Kind { TogglePanel, Separator, Deck, Quit };

    Kind kind;
    std::string title = {}; ///< UTF-8, without mnemonics
    std::int64_t deckIndex = 0;
    bool isChecked = false;

    bool operator==(const StatusMenuItem&) const = default;
};

enum class PanelVisibility { Hidden, Visible };

/// The whole menu, from top to bottom.
[[nodiscard]] std::vector<StatusMenuItem> statusMenu(const CardStore& store, PanelVisibility panel);

} // namespace cuebright
