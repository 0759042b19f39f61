#pragma once

#include "store/Change.h"

#include <QVariantAnimation>

#include <functional>

namespace cuebright {

/// A number from 0 to 1 that moves to where it is sent on a curve, from wherever it is.
class AnimatedValue final {
public:
    enum class Motion { Animated, AtOnce };

    /// `changed` is called with each new value, the last one included.
    AnimatedValue(double value, Seconds duration, std::function<void()> changed,
        Animation::Curve curve = Animation::Curve::EaseInOut);
    AnimatedValue(const AnimatedValue&) = delete;
    AnimatedValue& operator=(const AnimatedValue&) = delete;

    [[nodiscard]] double value() const { return m_value; }
    [[nodiscard]] bool hasArrived() const { return m_value == m_target; }

    /// Of the moves to come.
    void setDuration(Seconds duration);
    void moveTo(double target, Motion motion);

private:
    void take(double value);

    double m_value;
    double m_target;
    std::function<void()> m_changed;
    QVariantAnimation m_animation;
};

} // namespace cuebright
