#pragma once

#include "platform/MainQueue.h"
#include "platform/Preferences.h"

#include <QMap>
#include <QString>

#include <filesystem>

namespace cuebright {

/// Preferences in a QSettings file, stored as texts. Keys must be ASCII.
///
/// The changes of one event loop iteration are written together, and pending ones on destruction. What could not be
/// written is tried again with the next change.
class QtPreferences final : public Preferences {
public:
    /// Reads the file; `mainQueue` must outlive this.
    QtPreferences(MainQueue& mainQueue, const std::filesystem::path& file);
    ~QtPreferences() override;

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
    using Texts = QMap<QString, QString>;

    static Texts readFile(const QString& file);
    void set(const QString& key, const QString& value);
    void removeGroup(const QString& key);
    void scheduleWrite();
    void write();

    MainQueue& m_mainQueue;
    QString m_file;
    Texts m_values;
    Texts m_written; ///< what the file holds
    int m_writeCount = 0;
    PendingTask m_pendingWrite;
};

} // namespace cuebright
