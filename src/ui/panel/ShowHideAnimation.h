#pragma once

#include "ui/animation/AnimatedValue.h"

#include <QPointer>

#include <functional>

class QWidget;

namespace cuebright {

class ScaleEffect;

/// Fades a window in and out and scales its content by 2 %. The scale is only painted: the window's geometry never
/// changes. Reversing starts from what is on the screen.
class ShowHideAnimation final {
public:
    /// `content` fills `window`. `hidden` is called at the end of each `hide`; both outlive this.
    ShowHideAnimation(QWidget& window, QWidget& content, std::function<void()> hidden);

    /// The opacity of the fully shown window, clamped to [0, 1].
    void setOpacity(double opacity);
    void show(AnimatedValue::Motion motion);
    void hide(AnimatedValue::Motion motion);
    /// Call when the window was hidden otherwise: the next show starts from transparent.
    void reset();

private:
    void apply();

    QWidget& m_window;
    QWidget& m_content;
    std::function<void()> m_hidden;
    double m_opacity = 1;
    bool m_isHiding = false;
    QPointer<ScaleEffect> m_effect; ///< null while nothing moves
    AnimatedValue m_visibility;
};

} // namespace cuebright
