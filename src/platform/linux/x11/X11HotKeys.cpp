#include "platform/linux/x11/X11HotKeys.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>

#include <array>
#include <cctype>
#include <optional>
#include <string_view>
#include <utility>

namespace cuebright {

namespace {

constexpr std::uint16_t kModifiers = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT;
constexpr std::uint16_t kNumLock = XCB_MOD_MASK_2;
constexpr std::array<std::uint16_t, 4> kLocks {0, XCB_MOD_MASK_LOCK, kNumLock, XCB_MOD_MASK_LOCK | kNumLock};
constexpr std::uint16_t kAllModifiers = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4;

/// Key codes of the letters on a US keyboard (evdev), for layouts that have no Latin letters at all.
std::optional<xcb_keycode_t> physicalKeyOf(char letter)
{
    constexpr std::array<std::pair<std::string_view, int>, 3> kRows {
        {{"qwertyuiop", 24}, {"asdfghjkl", 38}, {"zxcvbnm", 52}}};
    for (const auto& [letters, first] : kRows) {
        if (const auto column = letters.find(letter); column != std::string_view::npos)
            return static_cast<xcb_keycode_t>(first + static_cast<int>(column));
    }
    return std::nullopt;
}

/// The key that types the letter, in the first layout that has the letter.
std::optional<xcb_keycode_t> keyOf(const X11Connection& x11, char letter)
{
    const auto* const setup = xcb_get_setup(x11.get());
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto cookie = xcb_get_keyboard_mapping(x11.get(), setup->min_keycode, count);
    const XcbReply<xcb_get_keyboard_mapping_reply_t> map(xcb_get_keyboard_mapping_reply(x11.get(), cookie, nullptr));
    if (!map)
        return std::nullopt;
    const auto* const symbols = xcb_get_keyboard_mapping_keysyms(map.get());
    const int width = map->keysyms_per_keycode;
    for (int column = 0; column < width; ++column) {
        for (int key = 0; key < count; ++key) {
            if (symbols[key * width + column] == static_cast<xcb_keysym_t>(letter))
                return static_cast<xcb_keycode_t>(setup->min_keycode + key);
        }
    }
    return physicalKeyOf(letter);
}

class Registration final : public HotKeyRegistration, public QAbstractNativeEventFilter {
public:
    Registration(const X11Connection& x11, char letter, std::function<void()> pressed)
        : m_x11(x11)
        , m_letter(static_cast<char>(std::tolower(static_cast<unsigned char>(letter))))
        , m_pressed(std::move(pressed))
    {
        // Clients that use the XKEYBOARD extension, as Qt does, receive its event instead of MappingNotify.
        constexpr std::string_view kName = "XKEYBOARD";
        const auto cookie = xcb_query_extension(x11.get(), kName.size(), kName.data());
        const XcbReply<xcb_query_extension_reply_t> keyboard(xcb_query_extension_reply(x11.get(), cookie, nullptr));
        if (keyboard && keyboard->present)
            m_keyboardEvent = keyboard->first_event;
        grab();
        QCoreApplication::instance()->installNativeEventFilter(this);
    }
    ~Registration() override { ungrab(); }

    bool isSystemWide() const override { return m_key.has_value(); }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override
    {
        const auto* const event = static_cast<const xcb_generic_event_t*>(message);
        const auto type = event->response_type & ~0x80;
        if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE)
            return handleKey(*reinterpret_cast<const xcb_key_press_event_t*>(event), type == XCB_KEY_PRESS);
        if (type == XCB_MAPPING_NOTIFY || isNewKeyboardMap(*event))
            followLayout();
        return false;
    }

private:
    bool isNewKeyboardMap(const xcb_generic_event_t& event) const
    {
        constexpr std::uint8_t kMapNotify = 1; // 0 is NewKeyboardNotify
        return m_keyboardEvent != 0 && (event.response_type & ~0x80) == m_keyboardEvent && event.pad0 <= kMapNotify;
    }

    void followLayout()
    {
        if (keyOf(m_x11, m_letter) == m_key)
            return;
        ungrab();
        grab();
    }

    void grab()
    {
        const auto key = keyOf(m_x11, m_letter);
        if (!key)
            return;
        std::array<xcb_void_cookie_t, kLocks.size()> cookies {};
        for (std::size_t i = 0; i < kLocks.size(); ++i) {
            cookies[i] = xcb_grab_key_checked(
                m_x11.get(), 0, m_x11.root(), kModifiers | kLocks[i], *key, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        }
        m_key = key;
        bool isTaken = false;
        for (const auto cookie : cookies) {
            const XcbReply<xcb_generic_error_t> error(xcb_request_check(m_x11.get(), cookie));
            isTaken = isTaken || error;
        }
        if (isTaken)
            ungrab(); // a key that works with some lock states only is worse than none
    }

    void ungrab()
    {
        const auto key = std::exchange(m_key, std::nullopt);
        if (!key)
            return;
        m_isDown = false; // its release will not be reported
        for (const auto lock : kLocks)
            xcb_ungrab_key(m_x11.get(), *key, m_x11.root(), kModifiers | lock);
        xcb_flush(m_x11.get());
    }

    bool handleKey(const xcb_key_press_event_t& event, bool isPress)
    {
        const bool isHotKey = m_key && event.detail == *m_key && event.event == m_x11.root();
        if (!isHotKey)
            return false;
        // A held key repeats as presses only, or as pairs of a release and a press with the same time.
        if (!isPress) {
            m_isDown = false;
            m_releasedAt = event.time;
            return true;
        }
        const bool isRepetition = m_isDown || event.time == m_releasedAt;
        m_isDown = true;
        if ((event.state & kAllModifiers) == kModifiers && !isRepetition)
            m_pressed();
        return true;
    }

    const X11Connection& m_x11;
    char m_letter;
    std::function<void()> m_pressed;
    std::uint8_t m_keyboardEvent = 0;
    std::optional<xcb_keycode_t> m_key; ///< while it is grabbed
    bool m_isDown = false;
    xcb_timestamp_t m_releasedAt = XCB_CURRENT_TIME;
};

} // namespace

std::unique_ptr<HotKeyRegistration> X11HotKeys::registerHotKey(const HotKey& key, std::function<void()> pressed)
{
    auto registration = std::make_unique<Registration>(m_x11, key.letter, std::move(pressed));
    if (!registration->isSystemWide())
        return nullptr;
    return registration;
}

} // namespace cuebright
