#include "platform/system/FileSync.h"

#include "platform/windows/Win32.h"

#include <io.h>

namespace cuebright {

namespace {

std::string describe(DWORD error)
{
    constexpr DWORD kFlags =
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK; // one line
    wchar_t wide[512];
    const auto length = FormatMessageW(kFlags, nullptr, error, 0, wide, DWORD {std::size(wide)}, nullptr);
    std::string text(std::size_t {length} * 3, '\0'); // UTF-8 takes at most three bytes for a UTF-16 unit
    text.resize(static_cast<std::size_t>(WideCharToMultiByte(
        CP_UTF8, 0, wide, static_cast<int>(length), text.data(), static_cast<int>(text.size()), nullptr, nullptr)));
    while (text.ends_with(' '))
        text.pop_back();
    return text.empty() ? "error " + std::to_string(error) : text;
}

} // namespace

// Not run on Windows yet.
std::optional<FileError> syncFile(int fileDescriptor)
{
    const auto handle =
        fileDescriptor < 0 ? INVALID_HANDLE_VALUE : reinterpret_cast<HANDLE>(_get_osfhandle(fileDescriptor));
    if (handle == INVALID_HANDLE_VALUE || FlushFileBuffers(handle))
        return std::nullopt;
    const auto error = GetLastError();
    // The file system does not support it.
    if (error == ERROR_INVALID_FUNCTION || error == ERROR_NOT_SUPPORTED)
        return std::nullopt;
    return FileError {describe(error)};
}

// Windows cannot flush folders; NTFS journals their changes.
void syncDirectory(const std::filesystem::path&) { }

} // namespace cuebright
