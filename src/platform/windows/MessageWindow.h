#pragma once

#include "foundation/Signal.h"

#include <cstdint>

namespace cuebright {

/// A hidden window that receives system messages. Compiled for Windows, not run on it yet.
///
/// Not the thread's message queue, because modal loops of Windows (a native menu, a window being dragged) dispatch to
/// windows only. A top-level window, because message-only windows receive no broadcasts. Listeners run on the thread
/// that makes it, which must have a message loop.
class MessageWindow final {
public:
    MessageWindow();
    MessageWindow(const MessageWindow&) = delete;
    MessageWindow& operator=(const MessageWindow&) = delete;
    ~MessageWindow();

    /// The HWND; null where it could not be created.
    [[nodiscard]] void* handle() const { return m_handle; }

    /// Enables `sessionChanged`. May block on another process.
    void watchSession();

    /// Posts `terminationRequested` to the window with this handle. Thread-safe; no effect on a destroyed window.
    static void requestTermination(void* handle);

    /// With the id of the hot key.
    Signal<std::uint32_t> hotKeyPressed;
    /// Some setting of the user has changed.
    Signal<> settingsChanged;
    /// The session was connected to or disconnected from a local or remote screen.
    Signal<> sessionChanged;
    Signal<> terminationRequested;

    /// For the window procedure: handles a message. False if the default handling is needed too.
    bool receive(std::uint32_t message, std::uintptr_t parameter);

private:
    void* m_handle;
    bool m_watchesSession = false;
};

} // namespace cuebright
