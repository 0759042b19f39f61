#pragma once

#include "platform/FileSystem.h"

namespace cuebright {

/// The real file system.
class QtFileSystem final : public FileSystem {
public:
    std::optional<std::filesystem::path> applicationSupportDirectory() override;
    bool createDirectories(const std::filesystem::path& directory) override;
    bool exists(const std::filesystem::path& path) override;
    bool removeFile(const std::filesystem::path& path) override;
    std::optional<std::string> readFile(const std::filesystem::path& path, std::size_t spareCapacity) override;
    std::optional<FileError> writeFileAtomically(
        const std::filesystem::path& path, std::string_view content, Readers readers) override;
};

} // namespace cuebright
