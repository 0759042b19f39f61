#include "platform/windows/Personalization.h"

#include "platform/windows/Win32.h"

namespace cuebright {

namespace {

/// Whether a switch exists and is off. They are on by default.
bool isSwitchedOff(const wchar_t* name)
{
    DWORD value = 0;
    DWORD size = sizeof value;
    const auto result =
        RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize", name,
            RRF_RT_REG_DWORD, nullptr, &value, &size);
    return result == ERROR_SUCCESS && value == 0;
}

} // namespace

bool appsAreDark() { return isSwitchedOff(L"AppsUseLightTheme"); }

bool transparencyIsOff() { return isSwitchedOff(L"EnableTransparency"); }

} // namespace cuebright
