#pragma once

#include "platform/HotKeys.h"

namespace cuebright {

/// For a system without global hot keys.
class NoHotKeys final : public HotKeys {
public:
    std::unique_ptr<HotKeyRegistration> registerHotKey(const HotKey&, std::function<void()>) override { return {}; }
};

} // namespace cuebright
