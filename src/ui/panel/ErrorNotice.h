#pragma once

#include "ui/base/PanelContext.h"

#include <QWidget>

namespace cuebright {

class DismissButton;
class PanelLabel;

/// A dot, an error and the button that hides it. Its text gives way to the last letter; dot and button stay.
class ErrorNotice final : public QWidget {
public:
    ErrorNotice(const PanelContext& context, QWidget* parent);

    void setText(const QString& text);
    /// From 0 to 1.
    void setInkOpacity(double opacity);
    /// Has a screen reader read the error now.
    void announce();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const PanelContext& m_context;
    PanelLabel* m_text;
    DismissButton* m_dismiss;
    double m_opacity = 1;
};

} // namespace cuebright
