#pragma once

#include "ui/base/UiContext.h"

#include <QAbstractButton>

namespace cuebright {

/// A self-drawn button of the panel: takes focus by Tab only, is pressed by mouse, Space and Return.
class ButtonBase : public QAbstractButton {
public:
    ButtonBase(const UiContext& context, QWidget* parent)
        : QAbstractButton(parent)
        , m_context(context)
    {
        setFocusPolicy(Qt::TabFocus);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;

    /// Draws a focus ring along the button's edge if the button has focus.
    void drawFocusRing(QPainter& painter, double cornerRadius) const;

    const UiContext& m_context;
};

} // namespace cuebright
