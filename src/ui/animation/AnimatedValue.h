#pragma once

#include "store/Change.h"

#include <QVariantAnimation>

#include <functional>

namespace cuebright {

/// An animated value in [0, 1]: moveTo() eases from the current value to the target.
class AnimatedValue final {
public:
    enum class Motion { Animated, AtOnce };

    /// `changed` is called after each step, and always at the target.
    AnimatedValue(double value, Seconds duration, std::function<void()> changed,
        Animation::Curve curve = Animation::Curve::EaseInOut);
    AnimatedValue(const AnimatedValue&) = delete;
    AnimatedValue& operator=(const AnimatedValue&) = delete;

    [[nodiscard]] double value() const { return m_value; }
    [[nodiscard]] bool hasArrived() const { return m_value == m_target; }

    /// Applies from the next move on.
    void setDuration(Seconds duration);
    void moveTo(double target, Motion motion);

private:
    void setValue(double value);

    double m_value;
    double m_target;
    std::function<void()> m_changed;
    QVariantAnimation m_animation;
};

} // namespace cuebright
