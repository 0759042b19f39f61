#pragma once

#include "ui/animation/AnimatedValue.h"
#include "ui/base/ColorRole.h"
#include "ui/widgets/ButtonBase.h"
#include "ui/widgets/Icon.h"

#include <optional>

namespace cuebright {

/// A small button of the panel, drawn in the chrome style.
class ChromeButton final : public ButtonBase {
public:
    /// As wide as the words need. A "⌘" in front of them is drawn, as few fonts have it.
    ChromeButton(const UiContext& context, const QString& text, QWidget* parent);
    /// A symbol of `side` logical pixels in a frame of fixed size. It is called `name`, on the screen and to a screen
    /// reader.
    ChromeButton(const UiContext& context, Icon icon, int side, const QString& name, QWidget* parent);

    void setFrameWidth(int width);
    /// Another symbol of the same size, in an ink of its own.
    void setSymbol(Icon icon, ColorRole ink, const QString& name);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Symbol {
        Icon icon;
        int side;
        std::optional<ColorRole> ink = {}; ///< else the style's
    };

    ChromeButton(const UiContext& context, std::optional<Symbol> symbol, QWidget* parent);

    void setName(const QString& name);
    void drawTitle(QPainter& painter) const;

    std::optional<Symbol> m_symbol;
    int m_frameWidth;
    AnimatedValue m_press;
};

} // namespace cuebright
