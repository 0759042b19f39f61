#pragma once

#include "ui/base/UiContext.h"

#include <QWidget>

namespace cuebright {

class DismissButton;
class Label;

/// A dot, the error's text and a button that dismisses it. Where there is too little room, the text is elided down to
/// nothing.
class ErrorNotice final : public QWidget {
public:
    ErrorNotice(const UiContext& context, QWidget* parent);

    void setText(const QString& text);
    /// From 0 to 1.
    void setInkOpacity(double opacity);
    /// Announces the error to screen readers.
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
