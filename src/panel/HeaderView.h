#pragma once

#include "panel/PanelContext.h"

#include <QWidget>

namespace cuebright {

class DeckPicker;
class PanelLabel;

/// The panel's first line: where the speaker is, and in which deck.
class HeaderView final : public QWidget {
public:
    HeaderView(const PanelContext& context, QWidget* parent);

    void refresh();

private:
    const PanelContext& m_context;
    PanelLabel* m_position;
    DeckPicker* m_deckPicker;
};

} // namespace cuebright
