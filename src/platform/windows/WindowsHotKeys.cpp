#include "platform/windows/WindowsHotKeys.h"

#include "platform/windows/MessageWindow.h"

#include <utility>

#include "platform/windows/Win32.h"

namespace cuebright {

namespace {

class Registration final : public HotKeyRegistration {
public:
    Registration(MessageWindow& messages, std::uint32_t id, std::function<void()> pressed)
        : m_messages(messages)
        , m_id(id)
        , m_subscription(messages.hotKeyPressed.subscribe([id, pressed = std::move(pressed)](std::uint32_t pressedId) {
            if (pressedId == id)
                pressed();
        }))
    {
    }
    ~Registration() override { UnregisterHotKey(static_cast<HWND>(m_messages.handle()), static_cast<int>(m_id)); }

    bool isSystemWide() const override { return true; }

private:
    MessageWindow& m_messages;
    std::uint32_t m_id;
    Subscription m_subscription;
};

} // namespace

WindowsHotKeys::WindowsHotKeys(MessageWindow& messages)
    : m_messages(messages)
{
}

std::unique_ptr<HotKeyRegistration> WindowsHotKeys::registerHotKey(const HotKey& key, std::function<void()> pressed)
{
    constexpr UINT kModifiers = MOD_CONTROL | MOD_SHIFT | MOD_NOREPEAT;
    const auto window = static_cast<HWND>(m_messages.handle());
    // A letter's virtual-key code is its character code.
    if (!window || !RegisterHotKey(window, static_cast<int>(key.id), kModifiers, static_cast<UINT>(key.letter)))
        return {};
    return std::make_unique<Registration>(m_messages, key.id, std::move(pressed));
}

} // namespace cuebright
