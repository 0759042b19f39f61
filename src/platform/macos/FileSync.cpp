#include "platform/system/FileSync.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace cuebright {

// Not compiled or run on a Mac yet. fsync() alone leaves the data in the drive's cache.
std::optional<FileError> syncFile(int fileDescriptor)
{
    if (::fcntl(fileDescriptor, F_FULLFSYNC) == 0 || ::fsync(fileDescriptor) == 0)
        return std::nullopt;
    // The file system does not support it.
    if (errno == EINVAL || errno == ENOTSUP)
        return std::nullopt;
    return FileError {std::generic_category().message(errno)};
}

void syncDirectory(const std::filesystem::path& directory)
{
    const int opened = ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened < 0)
        return;
    ::fsync(opened);
    ::close(opened);
}

} // namespace cuebright
