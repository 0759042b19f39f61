#pragma once

#include "theme/Colors.h"

#include <QPainterPath>
#include <QRectF>

#include <functional>

class QPainter;

namespace cuebright {

/// A rectangle whose corners curve in without a visible start, as opposed to quarter circles. Every corner takes up
/// about one and a half times `radius` of its sides, less where they are short.
[[nodiscard]] QPainterPath continuousRoundedRect(const QRectF& rect, double radius);

/// How every small button of the panel is drawn.
class CuebrightChromeStyle final {
public:
    struct State {
        double pressed = 0; ///< 0 = released, 1 = pressed
        bool isEnabled = true;
        bool hasFocus = false; ///< reached by keyboard
    };

    /// How long a press takes to show, in milliseconds, on an ease-out curve.
    static constexpr int kPressAnimationTime = 80;

    explicit CuebrightChromeStyle(const Colors& colors)
        : m_colors(colors)
    {
    }

    /// Draws the button's body and, over it, what `drawLabel` draws with the painter's pen set to the label's colour.
    void draw(QPainter& painter, const QRectF& rect, const State& state,
        const std::function<void(QPainter&)>& drawLabel) const;

private:
    Colors m_colors;
};

} // namespace cuebright
