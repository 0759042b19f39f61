#include "platform/system/SystemServices.h"

#include "platform/system/FileSync.h"

#include "platform/Clock.h"
#include "platform/fallback/NoAccessibility.h"
#include "platform/fallback/NoCaptureExclusion.h"
#include "platform/fallback/NoHotKeys.h"
#include "platform/fallback/NoWindowSystem.h"

#include <chrono>

namespace cuebright {

namespace {

/// Whether the steady clock counts while the system is suspended differs from system to system.
class StandardClock final : public Clock {
public:
    Instant now() override { return std::chrono::floor<Instant::duration>(std::chrono::system_clock::now()); }
    Seconds uptime() override { return std::chrono::steady_clock::now().time_since_epoch(); }
};

} // namespace

struct SystemServices::System {
    StandardClock clock {};
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

Clock& SystemServices::clock() { return m_system->clock; }

Accessibility& SystemServices::accessibility() { return m_system->accessibility; }

Desktop SystemServices::desktop() { return {m_system->captureExclusion, m_system->hotKeys, m_system->windowSystem}; }

void SystemServices::start() { }

std::optional<FileError> syncFile(int) { return std::nullopt; }

void syncDirectory(const std::filesystem::path&) { }

} // namespace cuebright
