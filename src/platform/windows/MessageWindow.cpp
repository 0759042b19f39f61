#include "platform/windows/MessageWindow.h"

#include "platform/windows/Win32.h"

#include <wtsapi32.h>

namespace cuebright {

namespace {

constexpr const wchar_t* kClassName = L"CuebrightMessages";
constexpr UINT kTerminate = WM_APP;

LRESULT CALLBACK windowProcedure(HWND handle, UINT message, WPARAM first, LPARAM second)
{
    auto* const window = reinterpret_cast<MessageWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
    if (window && window->receive(message, first))
        return 0;
    return DefWindowProcW(handle, message, first, second);
}

HWND createWindow()
{
    const HINSTANCE program = GetModuleHandleW(nullptr);
    WNDCLASSEXW windowClass {};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = windowProcedure;
    windowClass.hInstance = program;
    windowClass.lpszClassName = kClassName;
    RegisterClassExW(&windowClass); // fails if it is already registered, which does not matter
    return CreateWindowExW(0, kClassName, L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, program, nullptr);
}

} // namespace

MessageWindow::MessageWindow()
    : m_handle(createWindow())
{
    if (m_handle)
        SetWindowLongPtrW(static_cast<HWND>(m_handle), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

MessageWindow::~MessageWindow()
{
    if (!m_handle)
        return;
    const auto handle = static_cast<HWND>(m_handle);
    if (m_watchesSession)
        WTSUnRegisterSessionNotification(handle);
    SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
    DestroyWindow(handle);
}

void MessageWindow::watchSession()
{
    if (m_handle && !m_watchesSession)
        m_watchesSession = WTSRegisterSessionNotification(static_cast<HWND>(m_handle), NOTIFY_FOR_THIS_SESSION) != 0;
}

void MessageWindow::requestTermination(void* handle) { PostMessageW(static_cast<HWND>(handle), kTerminate, 0, 0); }

bool MessageWindow::receive(std::uint32_t message, std::uintptr_t parameter)
{
    switch (message) {
    case WM_HOTKEY:
        hotKeyPressed.notify(static_cast<std::uint32_t>(parameter));
        return true;
    case WM_SETTINGCHANGE:
    case WM_THEMECHANGED:
    case WM_DWMCOLORIZATIONCOLORCHANGED:
        settingsChanged.notify();
        return false;
    case WM_WTSSESSION_CHANGE:
        sessionChanged.notify();
        return false;
    case kTerminate:
        terminationRequested.notify();
        return true;
    case WM_CLOSE: // sent to every window of a program that is to quit; the panel handles it
        return true;
    default:
        return false;
    }
}

} // namespace cuebright
