#pragma once

#include "foundation/Signal.h"

#include <cstdint>

namespace cuebright {

/// A window that never shows and receives what Windows tells a program. Compiled for Windows, not run on it yet.
///
/// A window of its own, and not the thread's queue, because the system's own loops (a native menu, a window being
/// dragged) deliver to windows only. It is a top level: broadcasts pass over message-only windows. Listeners run on the
/// thread that makes it, which must have a message loop.
class MessageWindow final {
public:
    MessageWindow();
    MessageWindow(const MessageWindow&) = delete;
    MessageWindow& operator=(const MessageWindow&) = delete;
    ~MessageWindow();

    /// The HWND; null where it could not be made.
    [[nodiscard]] void* handle() const { return m_handle; }

    /// Asks for `sessionChanged`. May wait for another process.
    void watchSession();

    /// Has the `terminationRequested` of the window with this handle notified soon. From any thread, and harmless when
    /// the window is gone.
    static void requestTermination(void* handle);

    /// The key registered under this id was pressed.
    Signal<std::uint32_t> hotKeyPressed;
    /// One of the user's settings has changed, whichever it is.
    Signal<> settingsChanged;
    /// The session was connected to or disconnected from a screen, here or remote.
    Signal<> sessionChanged;
    Signal<> terminationRequested;

    /// For the window procedure: passes one message on. True if that was all there is to do.
    bool receive(std::uint32_t message, std::uintptr_t parameter);

private:
    void* m_handle;
    bool m_watchesSession = false;
};

} // namespace cuebright
