#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace cuebright::test {

/// The content of a file; empty if there is none.
[[nodiscard]] inline std::string readFile(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A folder on disk, removed with its content by the destructor.
class TemporaryFolder final {
public:
    TemporaryFolder()
    {
        if (!mkdtemp(m_path.data()))
            throw std::runtime_error("cannot make a temporary folder");
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    [[nodiscard]] std::filesystem::path path() const { return m_path; }
    [[nodiscard]] std::filesystem::path file(std::string_view name) const { return path() / name; }

    /// Writes a file and returns its path.
    std::filesystem::path write(std::string_view name, std::string_view content) const
    {
        std::ofstream(file(name), std::ios::binary) << content;
        return file(name);
    }

    [[nodiscard]] static unsigned modeOf(const std::filesystem::path& path)
    {
        return static_cast<unsigned>(std::filesystem::status(path).permissions());
    }

private:
    std::string m_path = std::filesystem::temp_directory_path() / "cuebright-XXXXXX";
};

} // namespace cuebright::test
