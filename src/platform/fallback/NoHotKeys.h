#pragma once

#include "platform/HotKeys.h"

namespace cuebright {

/// For a system on which no program can have a key of its own.
class NoHotKeys final : public HotKeys {
public:
    std::unique_ptr<HotKeyRegistration> registerHotKey(const HotKey&, std::function<void()>) override { return {}; }
};

} // namespace cuebright
