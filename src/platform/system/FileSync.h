#pragma once

#include "platform/FileSystem.h"

#include <filesystem>
#include <optional>

namespace cuebright {

// Defined once for each system, in its own folder.

/// Brings what was written to an open file to the disk; the reason when that fails. Silent where it cannot be asked.
[[nodiscard]] std::optional<FileError> syncFile(int fileDescriptor);

/// Brings a folder's entries to the disk, so that a file renamed into it outlives a power cut. Best effort.
void syncDirectory(const std::filesystem::path& directory);

} // namespace cuebright
