#pragma once

#include "foundation/Uuid.h"
#include "panel/CardLayout.h"
#include "panel/PanelContext.h"

#include <QAbstractScrollArea>

#include <optional>

namespace cuebright {

/// The active card, rendered, in a scroll area.
class CardArea final : public QAbstractScrollArea {
public:
    CardArea(const PanelContext& context, QWidget* parent);

    /// Shows what the store holds now; scrolls to the top when that is another card.
    void refresh();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, 0}; }

private:
    void layOut();

    const PanelContext& m_context;
    std::optional<CardLayout> m_layout;
    std::optional<Uuid> m_shownCard;
};

} // namespace cuebright
