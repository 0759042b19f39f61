#include "platform/system/ApplicationSupport.h"

#include "platform/windows/Win32.h"

#include <shlobj.h>

namespace cuebright {

// Not run on Windows yet.
std::optional<std::filesystem::path> applicationSupportFolder()
{
    PWSTR folder = nullptr;
    std::optional<std::filesystem::path> found;
    if (SUCCEEDED(SHGetKnownFolderPath(FOLDERID_RoamingAppData, 0, nullptr, &folder)))
        found = folder;
    CoTaskMemFree(folder);
    return found;
}

} // namespace cuebright
