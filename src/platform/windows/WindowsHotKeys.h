#pragma once

#include "platform/HotKeys.h"

namespace cuebright {

class MessageWindow;

/// Hot keys by RegisterHotKey. Compiled for Windows, not run on it yet.
class WindowsHotKeys final : public HotKeys {
public:
    /// `messages` must outlive this and its registrations.
    explicit WindowsHotKeys(MessageWindow& messages);

    std::unique_ptr<HotKeyRegistration> registerHotKey(const HotKey& key, std::function<void()> pressed) override;

private:
    MessageWindow& m_messages;
};

} // namespace cuebright
