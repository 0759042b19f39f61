#include "platform/qt/SystemServices.h"

#include "platform/Clock.h"
#include "platform/none/NoAccessibility.h"

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

std::unique_ptr<Clock> makeClock() { return std::make_unique<StandardClock>(); }

std::unique_ptr<Accessibility> makeAccessibility() { return std::make_unique<NoAccessibility>(); }

std::optional<FileError> syncFile(int) { return std::nullopt; }

void syncDirectory(const std::filesystem::path&) { }

} // namespace cuebright
