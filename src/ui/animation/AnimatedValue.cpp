#include "ui/animation/AnimatedValue.h"

#include "ui/animation/Easing.h"

#include <utility>

namespace cuebright {

AnimatedValue::AnimatedValue(double value, Seconds duration, std::function<void()> changed, Animation::Curve curve)
    : m_value(value)
    , m_target(value)
    , m_changed(std::move(changed))
{
    m_animation.setEasingCurve(easingCurve(curve));
    setDuration(duration);
    QObject::connect(&m_animation, &QVariantAnimation::valueChanged, &m_animation, [this](const QVariant& newValue) {
        if (m_animation.state() == QAbstractAnimation::Running)
            setValue(newValue.toDouble());
    });
    // The curve's last value differs from 1 by a rounding error.
    QObject::connect(&m_animation, &QAbstractAnimation::finished, &m_animation, [this] { setValue(m_target); });
}

void AnimatedValue::setDuration(Seconds duration) { m_animation.setDuration(milliseconds(duration)); }

void AnimatedValue::moveTo(double target, Motion motion)
{
    m_animation.stop();
    m_target = target;
    if (motion == Motion::AtOnce || m_value == target)
        return setValue(target);
    m_animation.setStartValue(m_value);
    m_animation.setEndValue(target);
    m_animation.start();
}

void AnimatedValue::setValue(double value)
{
    m_value = value;
    m_changed();
}

} // namespace cuebright
