#include "ui/panel/ShowHideAnimation.h"

#include "ui/animation/ScaleEffect.h"

#include <QWidget>

#include <algorithm>
#include <utility>

namespace cuebright {

namespace {

constexpr Seconds kDuration {0.15};
constexpr double kShrinkage = 0.02;

} // namespace

ShowHideAnimation::ShowHideAnimation(QWidget& window, QWidget& content, std::function<void()> hidden)
    : m_window(window)
    , m_content(content)
    , m_hidden(std::move(hidden))
    , m_visibility(0, kDuration, [this] { apply(); })
{
}

void ShowHideAnimation::setOpacity(double opacity)
{
    m_opacity = std::clamp(opacity, 0.0, 1.0);
    if (m_visibility.hasArrived())
        m_window.setWindowOpacity(m_opacity);
    else
        apply();
}

void ShowHideAnimation::show(AnimatedValue::Motion motion)
{
    m_isHiding = false;
    if (motion == AnimatedValue::Motion::Animated)
        apply(); // the window must not show before the first step
    m_visibility.moveTo(1, motion);
}

void ShowHideAnimation::hide(AnimatedValue::Motion motion)
{
    m_isHiding = true;
    m_visibility.moveTo(0, motion);
}

void ShowHideAnimation::reset()
{
    m_isHiding = false;
    m_visibility.moveTo(0, AnimatedValue::Motion::AtOnce);
}

void ShowHideAnimation::apply()
{
    const double value = m_visibility.value();
    m_window.setWindowOpacity(m_opacity * value);
    if (!m_visibility.hasArrived() || (value == 0 && !m_isHiding)) {
        if (!m_effect) {
            m_effect = new ScaleEffect;
            m_content.setGraphicsEffect(m_effect);
        }
        m_effect->setScale(1 - kShrinkage * (1 - value));
        return;
    }
    m_content.setGraphicsEffect(nullptr);
    if (std::exchange(m_isHiding, false)) {
        m_hidden();
        m_window.setWindowOpacity(m_opacity);
    }
}

} // namespace cuebright
