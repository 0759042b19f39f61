#pragma once

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

/// Owns all services of a running program; outlives whatever uses them. Make it after the `QApplication` and let it go
/// before that.
class QtPlatform final {
public:
    explicit QtPlatform(const std::filesystem::path& preferencesFile = defaultPreferencesFile());
    ~QtPlatform();

    /// `Cuebright/Cuebright.conf` in the user's folder for settings.
    [[nodiscard]] static std::filesystem::path defaultPreferencesFile();

    [[nodiscard]] Platform services();
    [[nodiscard]] QtAppearance& appearance() { return m_appearance; }

private:
    std::unique_ptr<Clock> m_clock;
    std::unique_ptr<Accessibility> m_accessibility;
    QtUuidSource m_uuids;
    StdoutLog m_log;
    QtMainQueue m_mainQueue;
    QtFileSystem m_fileSystem;
    QtPreferences m_preferences;
    QtAppearance m_appearance;
};

} // namespace cuebright
