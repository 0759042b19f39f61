#include "platform/qt/FilePreferences.h"

#include "platform/FileSystem.h"
#include "platform/MainQueue.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>
#include <vector>

namespace cuebright {

namespace {

template <typename Number> std::optional<Number> parseWhole(std::string_view text)
{
    Number number {};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

std::optional<double> parseFinite(std::string_view text)
{
    const auto number = parseWhole<double>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

template <typename Number> std::string shortest(Number number)
{
    std::array<char, 32> text {};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), number);
    return {text.data(), end};
}

std::string lowerCase(std::string text)
{
    for (char& c : text) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return text;
}

std::string groupPrefix(std::string_view key) { return std::string(key) + '/'; }

std::vector<std::string> keysIn(const IniValues& values, const std::string& prefix)
{
    std::vector<std::string> keys;
    for (auto it = values.lower_bound(prefix); it != values.end() && it->first.starts_with(prefix); ++it)
        keys.push_back(it->first);
    return keys;
}

} // namespace

FilePreferences::FilePreferences(FileSystem& fileSystem, MainQueue& mainQueue, std::filesystem::path file)
    : m_fileSystem(fileSystem)
    , m_mainQueue(mainQueue)
    , m_file(std::move(file))
{
    if (const auto content = m_fileSystem.readFile(m_file, 0))
        m_values = parseIni(*content);
}

FilePreferences::~FilePreferences() { write(); }

std::optional<bool> FilePreferences::boolean(std::string_view key)
{
    auto value = text(key);
    if (!value)
        return std::nullopt;
    const auto word = lowerCase(*std::move(value));
    return word == "true" || word == "1" || word == "yes";
}

std::optional<std::int64_t> FilePreferences::integer(std::string_view key)
{
    const auto value = text(key);
    return value ? parseWhole<std::int64_t>(*value) : std::nullopt;
}

std::optional<double> FilePreferences::number(std::string_view key)
{
    const auto value = text(key);
    return value ? parseFinite(*value) : std::nullopt;
}

std::optional<std::string> FilePreferences::text(std::string_view key)
{
    const auto it = m_values.find(key);
    return it == m_values.end() ? std::nullopt : std::optional(iniText(it->second));
}

Preferences::Numbers FilePreferences::numbers(std::string_view key)
{
    const auto prefix = groupPrefix(key);
    Numbers found;
    for (const auto& member : keysIn(m_values, prefix)) {
        if (const auto value = number(member))
            found.emplace(member.substr(prefix.size()), *value);
    }
    return found;
}

void FilePreferences::setBoolean(std::string_view key, bool value)
{
    change(std::string(key), value ? "true" : "false");
}

void FilePreferences::setInteger(std::string_view key, std::int64_t value)
{
    change(std::string(key), shortest(value));
}

void FilePreferences::setNumber(std::string_view key, double value) { change(std::string(key), shortest(value)); }

void FilePreferences::setText(std::string_view key, std::string_view value)
{
    change(std::string(key), iniValue(value));
}

void FilePreferences::setNumbers(std::string_view key, const Numbers& values)
{
    const auto prefix = groupPrefix(key);
    for (auto& member : keysIn(m_values, prefix)) {
        if (!values.contains(std::string_view(member).substr(prefix.size())))
            change(std::move(member), std::nullopt);
    }
    for (const auto& [name, value] : values)
        change(prefix + name, shortest(value));
}

void FilePreferences::remove(std::string_view key)
{
    change(std::string(key), std::nullopt);
    for (auto& member : keysIn(m_values, groupPrefix(key)))
        change(std::move(member), std::nullopt);
}

void FilePreferences::change(std::string key, std::optional<std::string> value)
{
    const auto it = m_values.find(key);
    const bool isStored = it == m_values.end() ? !value : it->second == value;
    if (isStored && m_unwritten.empty())
        return;
    if (value)
        m_values.insert_or_assign(key, *value);
    else
        m_values.erase(key);
    m_unwritten.insert_or_assign(std::move(key), std::move(value));
    scheduleWrite();
}

void FilePreferences::scheduleWrite()
{
    if (!std::exchange(m_writeScheduled, true))
        m_mainQueue.post(m_weak.guard([this] { write(); }));
}

void FilePreferences::write()
{
    m_writeScheduled = false;
    if (m_unwritten.empty())
        return;
    const auto onDisk = m_fileSystem.readFile(m_file, 0);
    auto values = onDisk ? parseIni(*onDisk) : m_values; // somebody may have edited the file
    for (const auto& [key, value] : m_unwritten) {
        if (value)
            values.insert_or_assign(key, *value);
        else
            values.erase(key);
    }
    const auto content = formatIni(values);
    if (content != onDisk) {
        m_fileSystem.createDirectories(m_file.parent_path());
        if (m_fileSystem.writeFileAtomically(m_file, content))
            return;
    }
    m_values = std::move(values);
    m_unwritten.clear();
}

} // namespace cuebright
