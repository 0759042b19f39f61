#pragma once

#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace cuebright::test {

/// A folder on the real disk that goes away with its content.
class TemporaryFolder final {
public:
    TemporaryFolder() { } // not defaulted: clang has no constants of such classes as members
    [[nodiscard]] std::filesystem::path path() const { return m_folder.path().toStdString(); }
    [[nodiscard]] std::filesystem::path file(std::string_view name) const { return path() / name; }

    /// Makes or replaces a file and returns its path.
    std::filesystem::path write(std::string_view name, std::string_view content) const
    {
        std::ofstream(file(name), std::ios::binary) << content;
        return file(name);
    }

    [[nodiscard]] static std::string contentOf(const std::filesystem::path& path)
    {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    [[nodiscard]] static unsigned modeOf(const std::filesystem::path& path)
    {
        return static_cast<unsigned>(std::filesystem::status(path).permissions());
    }

    [[nodiscard]] std::size_t entryCount() const
    {
        const std::filesystem::directory_iterator entries(path());
        return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
    }

private:
    QTemporaryDir m_folder;
};

} // namespace cuebright::test
