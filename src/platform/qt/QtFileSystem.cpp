#include "platform/qt/QtFileSystem.h"

#include "platform/system/ApplicationSupport.h"
#include "platform/system/FileSync.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <exception>
#include <system_error>

namespace cuebright {

namespace {

constexpr auto kOwnerOnly = QFile::ReadOwner | QFile::WriteOwner;
constexpr std::size_t kReadStep = 262'144; // fits the CPU cache between zeroing and reading

QString toQString(const std::filesystem::path& path) { return QFileInfo(path).filePath(); }

std::optional<std::string> readAll(QFile& file, std::size_t spareCapacity)
{
    std::string content;
    content.reserve(static_cast<std::size_t>(file.size()) + kReadStep + spareCapacity);
    for (;;) {
        const auto old = content.size();
        content.resize(old + kReadStep);
        const auto count = file.read(content.data() + old, qint64 {kReadStep});
        if (count < 0)
            return std::nullopt;
        content.resize(old + static_cast<std::size_t>(count));
        if (count == 0)
            break;
    }
    content.reserve(content.size() + spareCapacity); // the file may have grown
    return content;
}

/// A short write sets no error; writing the rest does.
bool writeAll(QSaveFile& file, std::string_view content)
{
    while (!content.empty()) {
        const auto count = file.write(content.data(), static_cast<qint64>(content.size()));
        if (count <= 0)
            return false;
        content.remove_prefix(static_cast<std::size_t>(count));
    }
    return file.flush();
}

FileError lastError(const QSaveFile& file) { return {file.errorString().simplified().toStdString()}; }

} // namespace

std::optional<std::filesystem::path> QtFileSystem::applicationSupportDirectory() { return applicationSupportFolder(); }

bool QtFileSystem::createDirectories(const std::filesystem::path& directory)
{
    std::error_code error;
    std::filesystem::path made;
    for (const auto& part : directory) {
        made /= part;
        if (!std::filesystem::is_directory(made, error))
            QDir().mkdir(toQString(made), kOwnerOnly | QFile::ExeOwner);
    }
    return std::filesystem::is_directory(directory, error);
}

bool QtFileSystem::exists(const std::filesystem::path& path)
{
    std::error_code error;
    return std::filesystem::exists(path, error);
}

bool QtFileSystem::removeFile(const std::filesystem::path& path) { return QFile::remove(toQString(path)); }

std::optional<std::string> QtFileSystem::readFile(const std::filesystem::path& path, std::size_t spareCapacity)
{
    if (!QFileInfo(path).isFile()) // opening a pipe would wait for its other end
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::nullopt;
    try {
        return readAll(file, spareCapacity);
    } catch (const std::exception&) { // larger than memory
        return std::nullopt;
    }
}

std::optional<FileError> QtFileSystem::writeFileAtomically(
    const std::filesystem::path& path, std::string_view content, Readers readers)
{
    const bool isNew = !exists(path);
    if (!isNew && readers == Readers::Owner && !QFileInfo(path).isWritable())
        QFile::setPermissions(toQString(path), kOwnerOnly);
    QSaveFile file(toQString(path));
    // commit() ignores a failure to write what is buffered (seen in Qt 6.4.2).
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return lastError(file);
    if (isNew && readers == Readers::Owner)
        file.setPermissions(kOwnerOnly);
    std::optional<FileError> failure;
    if (!writeAll(file, content))
        failure = lastError(file);
    else
        failure = syncFile(file.handle());
    if (failure) {
        file.cancelWriting();
        return failure;
    }
    if (!file.commit())
        return lastError(file);
    std::error_code error;
    if (const auto target = std::filesystem::canonical(path, error); !error)
        syncDirectory(target.parent_path());
    return std::nullopt;
}

} // namespace cuebright
