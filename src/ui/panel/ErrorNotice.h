#pragma once

#include "ui/base/UiContext.h"

#include <QWidget>

namespace cuebright {

class DismissButton;
class Label;

/// A dot, an error and the button that hides it. Its text gives way to the last letter; dot and button stay.
class ErrorNotice final : public QWidget {
public:
    ErrorNotice(const UiContext& context, QWidget* parent);

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
    const UiContext& m_context;
    Label* m_text;
    DismissButton* m_dismiss;
    double m_opacity = 1;
};

} // namespace cuebright
