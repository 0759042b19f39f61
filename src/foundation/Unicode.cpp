#include "foundation/Unicode.h"

#include <utf8proc.h>

namespace cuebright {

namespace {

constexpr bool isAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

constexpr bool isAsciiWhiteSpace(char32_t c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

utf8proc_category_t category(char32_t c)
{
    return utf8proc_category(static_cast<utf8proc_int32_t>(c)); // "not assigned" for an invalid code point
}

} // namespace

CodePoint firstCodePoint(std::string_view text)
{
    if (text.empty())
        return {kInvalidCodePoint, 0};
    if (isAscii(text.front()))
        return {static_cast<char32_t>(text.front()), 1};
    utf8proc_int32_t value = -1;
    const auto length = utf8proc_iterate(
        reinterpret_cast<const utf8proc_uint8_t*>(text.data()), static_cast<utf8proc_ssize_t>(text.size()), &value);
    if (length <= 0)
        return {kInvalidCodePoint, 1};
    return {static_cast<char32_t>(value), static_cast<std::size_t>(length)};
}

CodePoint lastCodePoint(std::string_view text)
{
    if (text.empty())
        return {kInvalidCodePoint, 0};
    for (std::size_t length = 1; length <= 4 && length <= text.size(); ++length) {
        const auto start = text.size() - length;
        const bool isContinuation = (static_cast<unsigned char>(text[start]) & 0xc0) == 0x80;
        if (isContinuation)
            continue;
        const auto codePoint = firstCodePoint(text.substr(start));
        if (codePoint.length == length)
            return codePoint;
        break;
    }
    return {kInvalidCodePoint, 1};
}

bool isBlank(char32_t c)
{
    if (c < 0x80)
        return c == ' ' || c == '\t';
    return category(c) == UTF8PROC_CATEGORY_ZS;
}

bool isWhiteSpace(char32_t c)
{
    if (c < 0x80)
        return isAsciiWhiteSpace(c);
    if (c == 0x85)
        return true;
    const auto kind = category(c);
    return kind == UTF8PROC_CATEGORY_ZS || kind == UTF8PROC_CATEGORY_ZL || kind == UTF8PROC_CATEGORY_ZP;
}

bool isDecimalDigit(char32_t c)
{
    if (c < 0x80)
        return c >= '0' && c <= '9';
    return category(c) == UTF8PROC_CATEGORY_ND;
}

std::string_view trimBlanks(std::string_view text)
{
    for (auto c = firstCodePoint(text); c.length > 0 && isBlank(c.value); c = firstCodePoint(text))
        text.remove_prefix(c.length);
    for (auto c = lastCodePoint(text); c.length > 0 && isBlank(c.value); c = lastCodePoint(text))
        text.remove_suffix(c.length);
    return text;
}

bool isAllWhiteSpace(std::string_view text)
{
    for (auto c = firstCodePoint(text); c.length > 0; c = firstCodePoint(text)) {
        if (!isWhiteSpace(c.value))
            return false;
        text.remove_prefix(c.length);
    }
    return true;
}

std::size_t countWords(std::string_view text)
{
    std::size_t count = 0;
    bool inWord = false;
    while (!text.empty()) {
        const auto c = firstCodePoint(text);
        const bool space = isWhiteSpace(c.value);
        if (!space && !inWord)
            ++count;
        inWord = !space;
        text.remove_prefix(c.length);
    }
    return count;
}

} // namespace cuebright
