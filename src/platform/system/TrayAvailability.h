#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace cuebright {

/// Waits for a place where status items can be.
class TrayAvailability {
public:
    virtual ~TrayAvailability() = default;
};

/// Looks at once, without waiting for another process. `arrived` runs once, from the event loop, as soon as there is a
/// place, which may be never; not any more when the watch is gone, and it may let the watch go itself.
[[nodiscard]] std::unique_ptr<TrayAvailability> watchForTray(std::function<void()> arrived);

/// The action's text with which an item shows exactly `title`, one line, in a status item's menu that the desktop
/// draws.
[[nodiscard]] QString exportedMenuText(QString title);

} // namespace cuebright
