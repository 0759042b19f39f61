#pragma once

#include "platform/HotKeys.h"

namespace cuebright {

/// Hot keys through Carbon events, the only interface that needs no permission from the user. One key at a time,
/// because the handler stays installed and does not distinguish keys. Not compiled or run on a Mac yet.
class MacHotKeys final : public HotKeys {
public:
    std::unique_ptr<HotKeyRegistration> registerHotKey(const HotKey& key, std::function<void()> pressed) override;
};

} // namespace cuebright
