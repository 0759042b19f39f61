#pragma once

#include "platform/Desktop.h"
#include "platform/Platform.h"
#include "platform/qt/QtAppearance.h"
#include "platform/qt/QtFileSystem.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtPreferences.h"
#include "platform/qt/QtUuidSource.h"
#include "platform/qt/QtWindowEvents.h"
#include "platform/qt/StdoutLog.h"
#include "platform/qt/SystemClock.h"
#include "platform/system/SystemServices.h"

#include <filesystem>

namespace cuebright {

/// Owns the adapters behind all ports. Must be destroyed before the `QApplication` and after whatever uses the ports.
class QtPlatform final {
public:
    explicit QtPlatform(const std::filesystem::path& preferencesFile = defaultPreferencesFile());

    /// `Cuebright/Cuebright.conf` in the user's configuration folder.
    [[nodiscard]] static std::filesystem::path defaultPreferencesFile();

    [[nodiscard]] Platform services();
    [[nodiscard]] Desktop desktop();

    /// Begins the requests that the first frame does not need. Call once, after that frame.
    void start();

private:
    SystemClock m_clock;
    QtUuidSource m_uuids;
    StdoutLog m_log;
    QtWindowEvents m_windowEvents;
    QtMainQueue m_mainQueue {m_windowEvents};
    QtFileSystem m_fileSystem;
    QtPreferences m_preferences;
    QtAppearance m_appearance {m_windowEvents};
    SystemServices m_system {m_appearance, m_windowEvents, m_mainQueue};
};

} // namespace cuebright
