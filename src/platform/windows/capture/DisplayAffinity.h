#pragma once

#include "platform/WindowSystem.h"

#include <cstdint>
#include <optional>

namespace cuebright {

/// Calls to Windows about windows and screen capture. The numbers are those of SetWindowDisplayAffinity.
class DisplayAffinity {
public:
    static constexpr std::uint32_t kNone = 0x00;
    static constexpr std::uint32_t kMonitor = 0x01; ///< a black box in captures
    static constexpr std::uint32_t kExcludeFromCapture = 0x11; ///< on older builds has the effect of `kMonitor`

    /// The first build with `kExcludeFromCapture`: Windows 10, version 2004.
    static constexpr std::uint32_t kFirstBuildToExclude = 19041;

    virtual ~DisplayAffinity() = default;

    /// False where Windows refuses. Read the effect with `affinity`.
    virtual bool setAffinity(WindowSystem::WindowId window, std::uint32_t affinity) = 0;

    /// Absent where the call fails.
    [[nodiscard]] virtual std::optional<std::uint32_t> affinity(WindowSystem::WindowId window) = 0;

    /// The build of the running Windows.
    [[nodiscard]] virtual std::uint32_t buildNumber() = 0;

    /// Whether the user sees the program through a remote desktop, which is a capture too.
    [[nodiscard]] virtual bool isRemoteSession() = 0;
};

} // namespace cuebright
