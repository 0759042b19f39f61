#include "platform/system/SystemServices.h"

#include "platform/system/FileSync.h"
#include "platform/system/Uptime.h"

#include "platform/fallback/NoAccessibility.h"
#include "platform/fallback/NoCaptureExclusion.h"
#include "platform/fallback/NoHotKeys.h"
#include "platform/fallback/NoWindowSystem.h"

#include <chrono>

namespace cuebright {

struct SystemServices::System {
    NoAccessibility accessibility {};
    NoCaptureExclusion captureExclusion {};
    NoHotKeys hotKeys {};
    NoWindowSystem windowSystem {};
};

SystemServices::SystemServices(QtAppearance&, QtWindowEvents&, MainQueue&)
    : m_system(std::make_unique<System>())
{
}

SystemServices::~SystemServices() = default;

Accessibility& SystemServices::accessibility() { return m_system->accessibility; }

Desktop SystemServices::desktop() { return {m_system->captureExclusion, m_system->hotKeys, m_system->windowSystem}; }

void SystemServices::start() { }

// May stop while the system is suspended.
Seconds systemUptime() { return std::chrono::steady_clock::now().time_since_epoch(); }

std::optional<FileError> syncFile(int) { return std::nullopt; }

void syncDirectory(const std::filesystem::path&) { }

} // namespace cuebright
