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
    /// As wide as its text. A leading "⌘" is drawn as a symbol, because few fonts have it.
    ChromeButton(const UiContext& context, const QString& text, QWidget* parent);
    /// A symbol of `side` logical pixels in a frame of fixed size; `name` is its tool tip and accessible name.
    ChromeButton(const UiContext& context, Icon icon, int side, const QString& name, QWidget* parent);

    void setFrameWidth(int width);
    /// Replaces the symbol, its colour and its name; the size stays.
    void setSymbol(Icon icon, ColorRole color, const QString& name);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Symbol {
        Icon icon;
        int side;
        std::optional<ColorRole> color = {}; ///< otherwise the style's
    };

    ChromeButton(const UiContext& context, std::optional<Symbol> symbol, QWidget* parent);

    void setName(const QString& name);
    void drawTitle(QPainter& painter) const;

    std::optional<Symbol> m_symbol;
    int m_frameWidth;
    AnimatedValue m_press;
};

} // namespace cuebright
