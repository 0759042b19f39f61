#include "platform/macos/MacHotKeys.h"

#include <cassert>
#include <utility>

#include <Carbon/Carbon.h>

namespace cuebright {

namespace {

/// The keys A to Z of an ANSI keyboard; other layouts have other letters there.
constexpr UInt32 kKeyCodes[] = {kVK_ANSI_A, kVK_ANSI_B, kVK_ANSI_C, kVK_ANSI_D, kVK_ANSI_E, kVK_ANSI_F, kVK_ANSI_G,
    kVK_ANSI_H, kVK_ANSI_I, kVK_ANSI_J, kVK_ANSI_K, kVK_ANSI_L, kVK_ANSI_M, kVK_ANSI_N, kVK_ANSI_O, kVK_ANSI_P,
    kVK_ANSI_Q, kVK_ANSI_R, kVK_ANSI_S, kVK_ANSI_T, kVK_ANSI_U, kVK_ANSI_V, kVK_ANSI_W, kVK_ANSI_X, kVK_ANSI_Y,
    kVK_ANSI_Z};

/// Global, because the installed handler outlives every registration.
std::function<void()>& pressedHandler()
{
    static std::function<void()> handler;
    return handler;
}

OSStatus hotKeyHandler(EventHandlerCallRef, EventRef, void*)
{
    if (const auto pressed = pressedHandler())
        pressed();
    return noErr;
}

class Registration final : public HotKeyRegistration {
public:
    Registration(EventHotKeyRef key, std::function<void()> pressed)
        : m_key(key)
    {
        pressedHandler() = std::move(pressed);
    }
    ~Registration() override
    {
        UnregisterEventHotKey(m_key);
        pressedHandler() = nullptr;
    }

    bool isSystemWide() const override { return true; }

private:
    EventHotKeyRef m_key;
};

} // namespace

std::unique_ptr<HotKeyRegistration> MacHotKeys::registerHotKey(const HotKey& key, std::function<void()> pressed)
{
    assert(key.letter >= 'A' && key.letter <= 'Z' && "a hot key is a letter");
    assert(!pressedHandler() && "one hot key at a time");
    constexpr UInt32 kModifiers = cmdKey | shiftKey;
    constexpr EventTypeSpec kKeyPressed {kEventClassKeyboard, kEventHotKeyPressed};

    const EventTargetRef target = GetApplicationEventTarget();
    EventHandlerRef handler = nullptr;
    // Fails if the handler is already installed.
    InstallEventHandler(target, hotKeyHandler, 1, &kKeyPressed, nullptr, &handler);
    EventHotKeyRef registered = nullptr;
    const EventHotKeyID id {key.signature, key.id};
    RegisterEventHotKey(kKeyCodes[key.letter - 'A'], kModifiers, id, target, 0, &registered);
    if (!registered)
        return {};
    return std::make_unique<Registration>(registered, std::move(pressed));
}

} // namespace cuebright
