#pragma once

#include "platform/HotKeys.h"

namespace cuebright {

/// Hot keys through the Carbon event interface, which still is the one that needs no permission of the user's. Not
/// compiled or run on a Mac yet.
///
/// Holds one key at a time: the handler stays for the life of the process and is called with no word about which key.
class MacHotKeys final : public HotKeys {
public:
    std::unique_ptr<HotKeyRegistration> registerHotKey(const HotKey& key, std::function<void()> pressed) override;
};

} // namespace cuebright
