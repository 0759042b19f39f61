#pragma once

#include "ui/widgets/ButtonBase.h"

namespace cuebright {

/// A text that opens a web page or a new message.
class LinkButton final : public ButtonBase {
public:
    LinkButton(const UiContext& context, const QString& text, const QString& target, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace cuebright
