#pragma once

#include "platform/linux/base/DBusSignal.h"
#include "platform/linux/portal/DesktopSettings.h"
#include "platform/linux/portal/Portal.h"

#include <functional>

namespace cuebright {

/// Reads the desktop's settings from its portal (`org.freedesktop.portal.Settings`) and follows their changes.
class SettingsPortal final {
public:
    /// Reads immediately, and again whenever a new portal appears. `changed` runs after each reading, with empty
    /// settings where there is no portal, and after each change.
    SettingsPortal(const QDBusConnection& bus, std::function<void(const DesktopSettings&)> changed);

private:
    void readAll();
    void onReply(const QDBusMessage& reply);
    void onSettingChanged(const QDBusMessage& signal);

    std::function<void(const DesktopSettings&)> m_changed;
    DesktopSettings m_settings;
    bool m_hasReply = false;
    Portal m_portal;
    DBusSignal m_settingChanged;
};

} // namespace cuebright
