#pragma once

#include "platform/Desktop.h"
#include "platform/Platform.h"
#include "platform/qt/QtAppearance.h"
#include "platform/qt/QtFileSystem.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtPreferences.h"
#include "platform/qt/QtUuidSource.h"
#include "platform/qt/StdoutLog.h"

#include <filesystem>
#include <memory>

namespace cuebright {

class SystemServices;

/// Owns all services of a running program; outlives whatever uses them. Make it after the `QApplication` and let it go
/// before that.
class QtPlatform final {
public:
    explicit QtPlatform(const std::filesystem::path& preferencesFile = defaultPreferencesFile());
    ~QtPlatform();

    /// `Cuebright/Cuebright.conf` in the user's folder for settings.
    [[nodiscard]] static std::filesystem::path defaultPreferencesFile();

    [[nodiscard]] Platform services();
    [[nodiscard]] Desktop desktop();

    /// Asks the desktop for what the first frame did not need. Call once, after that frame.
    void start();

private:
    QtUuidSource m_uuids;
    StdoutLog m_log;
    QtMainQueue m_mainQueue;
    QtFileSystem m_fileSystem;
    QtPreferences m_preferences;
    QtAppearance m_appearance;
    std::unique_ptr<SystemServices> m_system;
};

} // namespace cuebright
