#pragma once

#include "panel/PanelContext.h"

#include <QLabel>

namespace cuebright {

/// One line of text in one of the panel's colours. Where there is too little room it is cut with an ellipsis; a screen
/// reader always gets the whole.
class PanelLabel final : public QLabel {
public:
    enum class Ink { Muted, Red };
    enum class WhenNarrow { Keep, Elide };

    PanelLabel(const PanelContext& context, const QFont& font, Ink ink, WhenNarrow whenNarrow, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const PanelContext& m_context;
    Ink m_ink;
    WhenNarrow m_whenNarrow;
};

} // namespace cuebright
