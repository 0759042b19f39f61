#pragma once

#include "foundation/WeakTarget.h"
#include "platform/Preferences.h"
#include "platform/qt/IniFile.h"

#include <filesystem>
#include <optional>

namespace cuebright {

class FileSystem;
class MainQueue;

/// Preferences in one settings file, laid out as QSettings lays out its own and replaced as a whole, so that a full
/// disk costs no more than the latest change (Qt 6.4.2's QSettings can leave an empty file behind).
///
/// All changes of one turn of the event loop are written together at its end, and the last ones on destruction. What
/// could not be written is tried again with the next change. Keys are plain ASCII words.
class FilePreferences final : public Preferences {
public:
    /// Reads the file; `fileSystem` and `mainQueue` must outlive this.
    FilePreferences(FileSystem& fileSystem, MainQueue& mainQueue, std::filesystem::path file);
    ~FilePreferences() override;

    std::optional<bool> boolean(std::string_view key) override;
    std::optional<std::int64_t> integer(std::string_view key) override;
    std::optional<double> number(std::string_view key) override;
    std::optional<std::string> text(std::string_view key) override;
    Numbers numbers(std::string_view key) override;

    void setBoolean(std::string_view key, bool value) override;
    void setInteger(std::string_view key, std::int64_t value) override;
    void setNumber(std::string_view key, double value) override;
    void setText(std::string_view key, std::string_view value) override;
    void setNumbers(std::string_view key, const Numbers& values) override;
    void remove(std::string_view key) override;

private:
    using Changes = std::map<std::string, std::optional<std::string>>;

    void change(std::string key, std::optional<std::string> value);
    void scheduleWrite();
    void write();

    FileSystem& m_fileSystem;
    MainQueue& m_mainQueue;
    std::filesystem::path m_file;
    IniValues m_values;
    Changes m_unwritten; ///< by key; nothing for what was removed
    bool m_writeScheduled = false;
    WeakTarget m_weak;
};

} // namespace cuebright
