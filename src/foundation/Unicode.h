#pragma once

#include <cstddef>
#include <string_view>

/// Unicode character classes, and the operations on UTF-8 text that need them. Invalid bytes belong to no class.
namespace cuebright {

inline constexpr char32_t kInvalidCodePoint = 0xffffffff;

/// One code point at the start or end of a text: its value and its length in bytes. Invalid bytes are read one at a
/// time, as `kInvalidCodePoint`; an empty text has length 0.
struct CodePoint {
    char32_t value;
    std::size_t length;
};
[[nodiscard]] CodePoint firstCodePoint(std::string_view text);
[[nodiscard]] CodePoint lastCodePoint(std::string_view text);

/// General category Zs, or the tab; no line breaks.
[[nodiscard]] bool isBlank(char32_t c);
/// White space and line breaks: U+0009 to U+000D, U+0085, and the general categories Zs, Zl and Zp.
[[nodiscard]] bool isWhiteSpace(char32_t c);
/// General category Nd.
[[nodiscard]] bool isDecimalDigit(char32_t c);

/// `text` without blanks (`isBlank`) at both ends.
[[nodiscard]] std::string_view trimBlanks(std::string_view text);
/// Whether `text` is empty or only white space.
[[nodiscard]] bool isAllWhiteSpace(std::string_view text);
/// The number of words, separated by white space.
[[nodiscard]] std::size_t countWords(std::string_view text);

} // namespace cuebright
