#pragma once

#include "panel/PanelContext.h"

#include <QAbstractButton>
#include <QMenu>

namespace cuebright {

/// The name of the active deck, with a menu of all decks under it.
class DeckPicker final : public QAbstractButton {
public:
    DeckPicker(const PanelContext& context, QWidget* parent);

    void refresh();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void openMenu();

    const PanelContext& m_context;
    QMenu m_menu;
};

} // namespace cuebright
