#pragma once

#include "platform/Accessibility.h"
#include "platform/Appearance.h"
#include "platform/Desktop.h"
#include "platform/Platform.h"
#include "theme/Colors.h"

namespace cuebright {

class CardStore;
class NotificationCenter;

/// What the panel and its views use. Must outlive them.
struct UiContext {
    CardStore& store;
    NotificationCenter& notifications;
    Platform platform;
    Desktop desktop;

    /// For the current appearance and contrast.
    [[nodiscard]] Colors colors() const
    {
        return {platform.appearance.isDark(), platform.accessibility.increaseContrast()};
    }
};

} // namespace cuebright
