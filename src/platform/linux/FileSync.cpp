#include "platform/system/FileSync.h"
#include "platform/linux/base/FileDescriptor.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace cuebright {

std::optional<FileError> syncFile(int fileDescriptor)
{
    // EINVAL or ENOSYS: the file system does not support it.
    if (::fsync(fileDescriptor) == 0 || errno == EINVAL || errno == ENOSYS)
        return std::nullopt;
    return FileError {std::generic_category().message(errno)};
}

void syncDirectory(const std::filesystem::path& directory)
{
    const FileDescriptor opened(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.get() >= 0)
        ::fsync(opened.get());
}

} // namespace cuebright
