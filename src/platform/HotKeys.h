#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

namespace cuebright {

/// A letter together with the command key (Ctrl; Command on a Mac) and Shift.
struct HotKey {
    std::uint32_t signature; ///< four characters, the first in the high byte
    std::uint32_t id;
    char letter; ///< 'A' to 'Z'
    std::string_view name; ///< for the system: lower-case letters and '-'
    std::string_view purpose; ///< for the user, where the desktop lists its keys
};

/// Keeps a hot key registered while it exists.
class HotKeyRegistration {
public:
    virtual ~HotKeyRegistration() = default;

    /// Whether the system has granted the key. May change while the desktop is being asked.
    [[nodiscard]] virtual bool isSystemWide() const = 0;
};

/// Keys that work whichever program has the focus.
class HotKeys {
public:
    virtual ~HotKeys() = default;

    /// `pressed` runs on the main thread for each press, not for auto-repeat. Null if the system has no such keys or
    /// another program holds this one.
    [[nodiscard]] virtual std::unique_ptr<HotKeyRegistration> registerHotKey(
        const HotKey& key, std::function<void()> pressed) = 0;
};

} // namespace cuebright
