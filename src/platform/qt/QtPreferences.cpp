#include "platform/qt/QtPreferences.h"

#include "platform/qt/TextConversion.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <array>
#include <charconv>
#include <cmath>
#include <system_error>
#include <utility>

namespace cuebright {

namespace {

QString toKey(std::string_view key) { return QString::fromLatin1(key.data(), static_cast<qsizetype>(key.size())); }

template <typename Number> std::optional<Number> parseWhole(const std::string& text)
{
    Number number {};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

template <typename Number> QString shortest(Number number)
{
    std::array<char, 32> text {};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), number);
    return QString::fromLatin1(text.data(), end - text.data());
}

/// Replaces unpaired surrogates, which a damaged file can contain and which would not read back as written.
QString valid(const QString& text) { return toQString(toUtf8(text)); }

/// A text with unquoted commas, as a user may type it, is read as a list.
std::optional<QString> toText(const QVariant& value)
{
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList().join(QStringLiteral(", "));
    if (value.typeId() == QMetaType::QString)
        return value.toString();
    return std::nullopt;
}

} // namespace

QtPreferences::QtPreferences(MainQueue& mainQueue, const std::filesystem::path& file)
    : m_mainQueue(mainQueue)
    , m_file(QFileInfo(file).filePath())
    , m_values(readFile(m_file))
    , m_written(m_values)
{
}

QtPreferences::~QtPreferences() { write(); }

QtPreferences::Texts QtPreferences::readFile(const QString& file)
{
    Texts values;
    if (!QFileInfo(file).isFile()) // opening a pipe would block
        return values;
    const QSettings settings(file, QSettings::IniFormat);
    for (const auto& key : settings.allKeys()) {
        if (const auto text = toText(settings.value(key)))
            values.insert(valid(key), valid(*text));
    }
    return values;
}

std::optional<bool> QtPreferences::boolean(std::string_view key)
{
    const auto value = m_values.constFind(toKey(key));
    if (value == m_values.cend())
        return std::nullopt;
    const auto word = value->toLower();
    return word == QLatin1String("true") || word == QLatin1String("1") || word == QLatin1String("yes");
}

std::optional<std::int64_t> QtPreferences::integer(std::string_view key)
{
    const auto written = text(key);
    if (const auto whole = written ? parseWhole<std::int64_t>(*written) : std::nullopt)
        return whole;
    const auto value = number(key); // a user may have typed 150.0
    constexpr double kTooLarge = 9223372036854775808.0;
    const bool isWhole = value && std::trunc(*value) == *value && std::abs(*value) < kTooLarge;
    return isWhole ? std::optional(static_cast<std::int64_t>(*value)) : std::nullopt;
}

std::optional<double> QtPreferences::number(std::string_view key)
{
    const auto value = text(key);
    const auto number = value ? parseWhole<double>(*value) : std::nullopt;
    return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<std::string> QtPreferences::text(std::string_view key)
{
    const auto value = m_values.constFind(toKey(key));
    return value == m_values.cend() ? std::nullopt : std::optional(toUtf8(*value));
}

Preferences::Numbers QtPreferences::numbers(std::string_view key)
{
    const auto prefix = std::string(key) + '/';
    Numbers found;
    for (const auto& member : m_values.keys()) {
        const auto name = toUtf8(member);
        if (!name.starts_with(prefix))
            continue;
        if (const auto value = number(name))
            found.emplace(name.substr(prefix.size()), *value);
    }
    return found;
}

void QtPreferences::setBoolean(std::string_view key, bool value)
{
    set(toKey(key), value ? QStringLiteral("true") : QStringLiteral("false"));
}

void QtPreferences::setInteger(std::string_view key, std::int64_t value) { set(toKey(key), shortest(value)); }

void QtPreferences::setNumber(std::string_view key, double value) { set(toKey(key), shortest(value)); }

void QtPreferences::setText(std::string_view key, std::string_view value) { set(toKey(key), toQString(value)); }

void QtPreferences::setNumbers(std::string_view key, const Numbers& values)
{
    removeGroup(toKey(key));
    for (const auto& [name, value] : values)
        set(toKey(key) + QLatin1Char('/') + toKey(name), shortest(value));
}

void QtPreferences::remove(std::string_view key)
{
    m_values.remove(toKey(key));
    removeGroup(toKey(key));
    scheduleWrite();
}

void QtPreferences::set(const QString& key, const QString& value)
{
    m_values.insert(key, value);
    scheduleWrite();
}

void QtPreferences::removeGroup(const QString& key)
{
    m_values.removeIf([prefix = key + QLatin1Char('/')](const auto& value) { return value.key().startsWith(prefix); });
}

void QtPreferences::scheduleWrite()
{
    m_pendingWrite = m_mainQueue.post([this] { write(); });
}

/// On a full disk QSettings can leave an empty file and report success (seen in Qt 6.4.2). So it writes a new file,
/// which replaces the old one only if it reads back completely.
void QtPreferences::write()
{
    if (m_values == m_written)
        return;
    const QFileInfo old(m_file);
    const auto target = old.exists() ? old.canonicalFilePath() : m_file;
    const auto scratch = target + QStringLiteral(".new");
    QDir().mkpath(old.path());
    QFile::remove(scratch);
    {
        QSettings settings(scratch, QSettings::IniFormat);
        for (auto value = m_values.cbegin(); value != m_values.cend(); ++value)
            settings.setValue(value.key(), value.value());
    }
    // QSettings caches files by name: only under a new name is it read from the disk.
    const auto check = scratch + QString::number(++m_writeCount);
    QFile::remove(check); // left by a crash
    if (!QFile::rename(scratch, check))
        return;
    std::error_code error;
    if (readFile(check) == m_values) {
        QFile::setPermissions(check, QFile::ReadOwner | QFile::WriteOwner);
        std::filesystem::rename(QFileInfo(check).filesystemFilePath(), QFileInfo(target).filesystemFilePath(), error);
        if (!error) {
            m_written = m_values;
            return;
        }
    }
    QFile::remove(check);
}

} // namespace cuebright
