#pragma once

#include "platform/windows/capture/DisplayAffinity.h"

namespace cuebright {

/// The calls to Windows. Compiled for it, not run on it yet.
class Win32DisplayAffinity final : public DisplayAffinity {
public:
    bool setAffinity(WindowSystem::WindowId window, std::uint32_t affinity) override;
    std::optional<std::uint32_t> affinity(WindowSystem::WindowId window) override;
    std::uint32_t buildNumber() override;
    bool isRemoteSession() override;
};

} // namespace cuebright
