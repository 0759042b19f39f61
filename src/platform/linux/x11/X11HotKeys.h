#pragma once

#include "platform/HotKeys.h"
#include "platform/linux/x11/X11Connection.h"

namespace cuebright {

/// Hot keys as passive grabs on the root window: they work whatever window has the focus, with NumLock and CapsLock in
/// any state. Follows changes of the keyboard layout.
class X11HotKeys final : public HotKeys {
public:
    explicit X11HotKeys(const X11Connection& x11)
        : m_x11(x11)
    {
    }

    std::unique_ptr<HotKeyRegistration> registerHotKey(const HotKey& key, std::function<void()> pressed) override;

private:
    const X11Connection& m_x11;
};

} // namespace cuebright
