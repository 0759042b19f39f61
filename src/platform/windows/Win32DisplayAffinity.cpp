#include "platform/windows/Win32DisplayAffinity.h"

#include <bit>

#include "platform/windows/Win32.h"

namespace cuebright {

namespace {

HWND handleOf(WindowSystem::WindowId window) { return reinterpret_cast<HWND>(window); }

} // namespace

bool Win32DisplayAffinity::setAffinity(WindowSystem::WindowId window, std::uint32_t affinity)
{
    return SetWindowDisplayAffinity(handleOf(window), affinity) != 0;
}

std::optional<std::uint32_t> Win32DisplayAffinity::affinity(WindowSystem::WindowId window)
{
    DWORD affinity = 0;
    if (!GetWindowDisplayAffinity(handleOf(window), &affinity))
        return std::nullopt;
    return affinity;
}

std::uint32_t Win32DisplayAffinity::buildNumber()
{
    // GetVersionEx returns at most the version that the program's manifest names.
    using GetVersion = LONG(WINAPI*)(OSVERSIONINFOW*);
    const HMODULE library = GetModuleHandleW(L"ntdll.dll");
    const auto function = library ? GetProcAddress(library, "RtlGetVersion") : nullptr;
    OSVERSIONINFOW version {};
    version.dwOSVersionInfoSize = sizeof version;
    if (!function || std::bit_cast<GetVersion>(function)(&version) != 0)
        return 0;
    return version.dwBuildNumber;
}

bool Win32DisplayAffinity::isRemoteSession() { return GetSystemMetrics(SM_REMOTESESSION) != 0; }

} // namespace cuebright
