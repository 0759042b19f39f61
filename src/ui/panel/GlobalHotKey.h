#pragma once

#include "foundation/NotificationCenter.h"
#include "platform/HotKeys.h"
#include "ui/base/Notifications.h"

namespace cuebright {

/// ⌘⇧S: shows and hides the panel from any program.
inline constexpr HotKey kTogglePanelHotKey {
    .signature = 0x43554542, // 'CUEB'
    .id = 1,
    .letter = 'S',
    .name = "toggle-panel",
    .purpose = "Show / Hide window",
};

/// What the hot key does; nothing else.
inline void hotkeyHandler(NotificationCenter& notifications) { notifications.post(kTogglePanelNotification); }

} // namespace cuebright
