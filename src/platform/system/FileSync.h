#pragma once

#include "platform/FileSystem.h"

#include <filesystem>
#include <optional>

namespace cuebright {

// Defined once for each system.

/// Flushes an open file to the disk. No error where the file system does not support that.
[[nodiscard]] std::optional<FileError> syncFile(int fileDescriptor);

/// Flushes a folder's entries to the disk, so that a file renamed into it survives a power cut. Best effort.
void syncDirectory(const std::filesystem::path& directory);

} // namespace cuebright
