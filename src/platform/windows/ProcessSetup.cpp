#include "platform/system/ProcessSetup.h"

#include "platform/windows/MessageWindow.h"

#include <atomic>

#include "platform/windows/Win32.h"

namespace cuebright {

namespace {

/// Where the console's thread finds the main one: Windows calls it with no word about whom it is for.
std::atomic<void*> listenerHandle = nullptr;

BOOL WINAPI leaveWithConsole(DWORD event)
{
    void* const listener = listenerHandle;
    if (!listener)
        return FALSE;
    MessageWindow::requestTermination(listener);
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)
        Sleep(INFINITE); // the process ends as soon as this returns, and else after some seconds
    return TRUE;
}

} // namespace

// Not run on a Windows machine yet. The end of the session arrives through the toolkit.
struct ProcessSetup::System {
    MessageWindow messages;
    Subscription subscription {};
};

ProcessSetup::ProcessSetup() = default;

ProcessSetup::~ProcessSetup()
{
    if (!m_system)
        return;
    SetConsoleCtrlHandler(leaveWithConsole, FALSE);
    listenerHandle = nullptr;
}

std::vector<std::string> ProcessSetup::toolkitOptions() { return {}; }

void ProcessSetup::onApplicationCreated()
{
    m_system = std::make_unique<System>();
    m_system->subscription =
        m_system->messages.terminationRequested.subscribe([this] { terminationRequested.notify(); });
    listenerHandle = m_system->messages.handle();
    SetConsoleCtrlHandler(leaveWithConsole, TRUE);
}

} // namespace cuebright
