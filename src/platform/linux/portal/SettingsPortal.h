#pragma once

#include "platform/linux/base/DBusSignal.h"
#include "platform/linux/portal/DesktopSettings.h"
#include "platform/linux/portal/Portal.h"

#include <functional>

namespace cuebright {

/// The desktop's settings as its portal tells them (`org.freedesktop.portal.Settings`), and each change of them.
class SettingsPortal final {
public:
    /// Asks at once and again whenever a new portal appears. `told` runs with each answer, with no settings at all
    /// where there is no portal, and then with every change.
    SettingsPortal(const QDBusConnection& bus, std::function<void(const DesktopSettings&)> told);

private:
    void ask();
    void takeAll(const QDBusMessage& answer);
    void takeChange(const QDBusMessage& signal);

    std::function<void(const DesktopSettings&)> m_told;
    DesktopSettings m_settings;
    bool m_hasAnswer = false;
    Portal m_portal;
    DBusSignal m_settingChanged;
};

} // namespace cuebright
