#pragma once

#include "foundation/NotificationCenter.h"
#include "platform/HotKeys.h"
#include "ui/base/Notifications.h"

#include <QKeyCombination>

namespace cuebright {

/// ⌘⇧S, which shows and hides the panel.
inline constexpr QKeyCombination kTogglePanelKeys = Qt::CTRL | Qt::SHIFT | Qt::Key_S;

/// The same stroke, from any program.
inline constexpr HotKey kTogglePanelHotKey {
    .signature = 0x43554542, // 'CUEB'
    .id = 1,
    .letter = static_cast<char>(kTogglePanelKeys.key()),
    .name = "toggle-panel",
    .purpose = "Show / Hide window",
};

/// Runs at each press of the hot key.
inline void hotkeyHandler(NotificationCenter& notifications) { notifications.post(kTogglePanelNotification); }

} // namespace cuebright
