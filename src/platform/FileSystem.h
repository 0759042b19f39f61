#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace cuebright {

struct FileError {
    std::string description; ///< one line, worded by the system
};

/// The file operations that the program needs. None throws.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    /// The user's folder for application data, without the application's own name. Absent where there is none.
    [[nodiscard]] virtual std::optional<std::filesystem::path> applicationSupportDirectory() = 0;

    /// Creates the folder with all missing parents, for its owner only; true if it exists afterwards.
    virtual bool createDirectories(const std::filesystem::path& directory) = 0;

    [[nodiscard]] virtual bool exists(const std::filesystem::path& path) = 0;

    /// Removes a file; false if there was none or it could not be removed.
    virtual bool removeFile(const std::filesystem::path& path) = 0;

    /// The whole content of a regular file, with at least `spareCapacity` bytes of spare capacity; absent if it cannot
    /// be read.
    [[nodiscard]] virtual std::optional<std::string> readFile(
        const std::filesystem::path& path, std::size_t spareCapacity) = 0;

    /// Who may read a new file; an existing one keeps its permissions. A file for `Owner` is the program's own: it is
    /// replaced even if it is write-protected.
    enum class Readers { Owner, AsUsual };

    /// Replaces the file's content as a whole: a reader sees the old content or the new, also after a power cut. On
    /// failure the old content stays. Symbolic links are followed.
    [[nodiscard]] virtual std::optional<FileError> writeFileAtomically(
        const std::filesystem::path& path, std::string_view content, Readers readers) = 0;
};

} // namespace cuebright
