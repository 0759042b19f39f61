#include "platform/system/ProcessSetup.h"

#include "platform/windows/MessageWindow.h"

#include <atomic>

#include "platform/windows/Win32.h"

namespace cuebright {

namespace {

/// Global, because the console control handler gets no user data.
std::atomic<void*> messageWindow = nullptr;

BOOL WINAPI onConsoleControl(DWORD event)
{
    void* const window = messageWindow;
    if (!window)
        return FALSE;
    MessageWindow::requestTermination(window);
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)
        Sleep(INFINITE); // Windows ends the process when this returns, or after some seconds
    return TRUE;
}

} // namespace

// Not run on Windows yet. Qt reports the end of the session.
struct ProcessSetup::System {
    MessageWindow messages;
    Subscription subscription {};
};

ProcessSetup::ProcessSetup() = default;

ProcessSetup::~ProcessSetup()
{
    if (!m_system)
        return;
    SetConsoleCtrlHandler(onConsoleControl, FALSE);
    messageWindow = nullptr;
}

std::vector<std::string> ProcessSetup::qtOptions() { return {}; }

void ProcessSetup::onApplicationCreated()
{
    m_system = std::make_unique<System>();
    m_system->subscription =
        m_system->messages.terminationRequested.subscribe([this] { terminationRequested.notify(); });
    messageWindow = m_system->messages.handle();
    SetConsoleCtrlHandler(onConsoleControl, TRUE);
}

} // namespace cuebright
