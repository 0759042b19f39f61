#include "platform/qt/IniFile.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace cuebright {

namespace {

constexpr std::string_view kGeneral = "general";

bool isBlankByte(char c) { return c == ' ' || c == '\t'; }

bool isHexDigit(char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlankByte(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlankByte(text.back()))
        text.remove_suffix(1);
    return text;
}

bool isGeneral(std::string_view section)
{
    return std::ranges::equal(
        section, kGeneral, {}, [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
}

void appendUtf8(std::string& out, std::uint32_t codePoint)
{
    const auto append = [&out](std::uint32_t byte) { out += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (codePoint > 0xFFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF))
        codePoint = 0xFFFD; // an escape is one UTF-16 unit
    if (codePoint < 0x80) {
        append(codePoint);
    } else if (codePoint < 0x800) {
        append(0xC0 | (codePoint >> 6));
        append(0x80 | (codePoint & 0x3F));
    } else {
        append(0xE0 | (codePoint >> 12));
        append(0x80 | ((codePoint >> 6) & 0x3F));
        append(0x80 | (codePoint & 0x3F));
    }
}

/// Reads what follows a backslash and returns how much of `text` that was.
std::size_t appendUnescaped(std::string& out, std::string_view text)
{
    if (text.empty())
        return 0;
    constexpr std::string_view kLetters = "abfnrtv";
    constexpr std::string_view kControls = "\a\b\f\n\r\t\v";
    const bool isHex = text.front() == 'x';
    if (isHex || (text.front() >= '0' && text.front() <= '7')) {
        const char* start = text.data() + (isHex ? 1 : 0);
        std::uint32_t codePoint = 0;
        const auto [end, error] = std::from_chars(start, text.data() + text.size(), codePoint, isHex ? 16 : 8);
        appendUtf8(out, error == std::errc() ? codePoint : 0xFFFD);
        return static_cast<std::size_t>(end - text.data());
    }
    const auto letter = kLetters.find(text.front());
    out += letter == std::string_view::npos ? text.front() : kControls[letter];
    return 1;
}

} // namespace

IniValues parseIni(std::string_view text)
{
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    IniValues values;
    std::string prefix;
    while (!text.empty()) {
        const auto end = std::min(text.find_first_of("\r\n"), text.size());
        const auto line = trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.empty() || line.front() == ';' || line.front() == '#')
            continue;
        if (line.front() == '[') {
            const auto close = line.rfind(']');
            if (close == std::string_view::npos)
                continue;
            const auto section = trimmed(line.substr(1, close - 1));
            prefix = section.empty() || isGeneral(section) ? std::string() : std::string(section) + '/';
            continue;
        }
        const auto equals = line.find('=');
        if (equals == std::string_view::npos)
            continue;
        const auto key = trimmed(line.substr(0, equals));
        if (!key.empty() && key.find('/') == std::string_view::npos)
            values.insert_or_assign(prefix + std::string(key), trimmed(line.substr(equals + 1)));
    }
    return values;
}

std::string formatIni(const IniValues& values)
{
    std::string out;
    std::string_view openSection;
    const auto beginSection = [&out](std::string_view name) {
        out.append(out.empty() ? "[" : "\n[").append(name).append("]\n");
    };
    const auto writeLine = [&out](std::string_view key, std::string_view value) {
        out.append(key).append("=").append(value).append("\n");
    };
    for (const auto& [key, value] : values) {
        if (key.find('/') != std::string::npos)
            continue;
        if (out.empty())
            beginSection("General");
        writeLine(key, value);
    }
    for (const auto& [key, value] : values) {
        const auto slash = key.rfind('/');
        if (slash == std::string::npos)
            continue;
        const auto section = std::string_view(key).substr(0, slash);
        if (section != openSection)
            beginSection(section);
        openSection = section;
        writeLine(std::string_view(key).substr(slash + 1), value);
    }
    return out;
}

std::string iniValue(std::string_view text)
{
    constexpr std::string_view kDigits = "0123456789abcdef";
    bool quoted = !text.empty() && (isBlankByte(text.front()) || isBlankByte(text.back()));
    bool afterHex = false;
    std::string out;
    if (text.starts_with('@')) // a single one would begin a value of another kind
        out += '@';
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        quoted = quoted || c == ';' || c == ',' || c == '=';
        const bool wasAfterHex = std::exchange(afterHex, false);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (c == '\n') {
            out += "\\n";
        } else if (c == '\r') {
            out += "\\r";
        } else if (c == '\t') {
            out += "\\t";
        } else if (byte < 0x20 || byte == 0x7F || (wasAfterHex && isHexDigit(c))) {
            out += "\\x";
            out += kDigits[byte >> 4];
            out += kDigits[byte & 0xF];
            afterHex = true;
        } else {
            out += c;
        }
    }
    return quoted ? '"' + out + '"' : out;
}

std::string iniText(std::string_view value)
{
    std::string out;
    std::size_t kept = 0; // what follows is white space at the end, unless more comes
    bool inQuotes = false;
    while (!value.empty() && (inQuotes || value.front() != ';')) {
        const char c = value.front();
        value.remove_prefix(1);
        if (c == '\\')
            value.remove_prefix(appendUnescaped(out, value));
        else if (c == '"')
            inQuotes = !inQuotes;
        else
            out += c;
        if (inQuotes || !isBlankByte(c))
            kept = out.size();
    }
    out.resize(kept);
    if (out.starts_with("@@"))
        out.erase(0, 1);
    return out;
}

} // namespace cuebright
