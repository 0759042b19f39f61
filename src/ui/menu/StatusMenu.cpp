#include "ui/menu/StatusMenu.h"

#include "store/CardStore.h"

namespace cuebright {

std::vector<StatusMenuItem> statusMenu(const CardStore& store, PanelVisibility panel)
{
    using Kind = StatusMenuItem::Kind;
    std::vector<StatusMenuItem> items;
    items.push_back({Kind::TogglePanel, panel == PanelVisibility::Visible ? "Hide Cuebright" : "Show Cuebright"});
    items.push_back({Kind::Separator});
    std::int64_t index = 0;
    for (const auto& deck : store.decks()) {
        items.push_back({Kind::Deck, deck.name, index, index == store.activeDeckIndex()});
        ++index;
    }
    items.push_back({Kind::Separator});
    items.push_back({Kind::Quit, "Quit Cuebright"});
    return items;
}

} // namespace cuebright
