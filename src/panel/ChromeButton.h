#pragma once

#include "panel/Icon.h"
#include "panel/PanelButton.h"

#include <QVariantAnimation>

#include <optional>

namespace cuebright {

/// A small button of the panel, drawn in the chrome style.
class ChromeButton final : public PanelButton {
public:
    /// As wide as the words need. A "⌘" in front of them is drawn, as few fonts have it.
    ChromeButton(const PanelContext& context, const QString& text, QWidget* parent);
    /// A symbol of `side` logical pixels in a frame of fixed size. It is called `name`, on the screen and to a screen
    /// reader.
    ChromeButton(const PanelContext& context, Icon icon, int side, const QString& name, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Symbol {
        Icon icon;
        int side;
    };

    ChromeButton(const PanelContext& context, std::optional<Symbol> symbol, QWidget* parent);

    void animatePress(bool isDown);
    void drawTitle(QPainter& painter) const;

    std::optional<Symbol> m_symbol;
    QVariantAnimation m_press;
};

} // namespace cuebright
