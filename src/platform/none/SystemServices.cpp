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

class NoServices final : public SystemServices {
public:
    Clock& clock() override { return m_clock; }
    Accessibility& accessibility() override { return m_accessibility; }
    Desktop desktop() override { return {m_captureExclusion, m_hotKeys, m_windowSystem}; }
    void start() override { }

private:
    StandardClock m_clock;
    NoAccessibility m_accessibility;
    NoCaptureExclusion m_captureExclusion;
    NoHotKeys m_hotKeys;
    NoWindowSystem m_windowSystem;
};

} // namespace

std::unique_ptr<SystemServices> makeSystemServices(QtAppearance&, MainQueue&) { return std::make_unique<NoServices>(); }

std::optional<FileError> syncFile(int) { return std::nullopt; }

void syncDirectory(const std::filesystem::path&) { }

} // namespace cuebright
