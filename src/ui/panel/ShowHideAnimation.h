#pragma once

#include "ui/animation/AnimatedValue.h"

#include <QPointer>

#include <functional>

class QWidget;

namespace cuebright {

class ScaleEffect;

/// How a window comes and goes: its opacity, and 2 % of its size, which are only painted. The window's own geometry
/// stays as it is. A new direction starts from what is on the screen.
class ShowHideAnimation final {
public:
    /// `content` fills `window`. `hidden` is called at the end of each `hide`; both outlive this.
    ShowHideAnimation(QWidget& window, QWidget& content, std::function<void()> hidden);

    /// The opacity of the window when it is all there, limited to 0 to 1.
    void setOpacity(double opacity);
    void show(AnimatedValue::Motion motion);
    void hide(AnimatedValue::Motion motion);
    /// The window has left the screen by other ways: the next show starts from nothing.
    void reset();

private:
    void apply();

    QWidget& m_window;
    QWidget& m_content;
    std::function<void()> m_hidden;
    double m_opacity = 1;
    bool m_isHiding = false;
    QPointer<ScaleEffect> m_effect; ///< there only while something moves
    AnimatedValue m_visibility;
};

} // namespace cuebright
