#pragma once

#include "theme/Colors.h"

#include <QPainterPath>
#include <QRectF>

#include <functional>

class QPainter;

namespace cuebright {

/// A rectangle with corners of continuous curvature, unlike quarter circles. Each corner takes up about 1.5 × `radius`
/// of its sides, less where they are short.
[[nodiscard]] QPainterPath continuousRoundedRect(const QRectF& rect, double radius);

/// Draws the panel's small buttons.
class CuebrightChromeStyle final {
public:
    struct State {
        double pressed = 0; ///< 0 = released, 1 = pressed
        bool isEnabled = true;
        bool hasFocus = false;
    };

    /// Duration of the press animation in milliseconds; ease-out.
    static constexpr int kPressAnimationTime = 80;

    explicit CuebrightChromeStyle(const Colors& colors)
        : m_colors(colors)
    {
    }

    /// Draws the button's body, then calls `drawLabel` with the pen set to the label's colour.
    void draw(QPainter& painter, const QRectF& rect, const State& state,
        const std::function<void(QPainter&)>& drawLabel) const;

private:
    Colors m_colors;
};

} // namespace cuebright
