#pragma once

#include "foundation/Signal.h"
#include "platform/Accessibility.h"

#include <array>

namespace cuebright {

class MessageWindow;

/// Animation effects, transparency effects and contrast themes, from the settings of Windows. Compiled for it, not run
/// on it yet.
class WindowsAccessibility final : public Accessibility {
public:
    /// `messages` must outlive this.
    explicit WindowsAccessibility(MessageWindow& messages);

    bool reduceMotion() override;
    bool reduceTransparency() override;
    bool increaseContrast() override;

private:
    std::array<bool, 3> readAll();
    void update();

    std::array<bool, 3> m_last;
    Subscription m_subscription;
};

} // namespace cuebright
