#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace cuebright {

/// Waits until the desktop can show tray icons. Defined once for each system.
class TrayAvailability final {
public:
    /// `available` runs once, from the event loop, as soon as there is a tray, which may be never. Not after this
    /// object is destroyed, which `available` may do itself.
    explicit TrayAvailability(std::function<void()> available);
    ~TrayAvailability();

private:
    struct System;
    std::unique_ptr<System> m_system;
};

/// The `QAction` text that shows as exactly `title` (one line) in a tray icon's menu that the desktop draws.
[[nodiscard]] QString exportedMenuText(QString title);

} // namespace cuebright
