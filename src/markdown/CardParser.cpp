#include "markdown/CardParser.h"

#include "foundation/Unicode.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace cuebright {

namespace {

constexpr std::size_t kMarkerLength = 2;

/// Decimal digits of any script, a full stop and one white-space character at the start of a line.
struct NumberMarker {
    std::string_view digits;
    std::size_t length; ///< in bytes, white space included
};

std::optional<NumberMarker> numberMarker(std::string_view line)
{
    std::size_t position = 0;
    for (auto c = firstCodePoint(line); isDecimalDigit(c.value); c = firstCodePoint(line.substr(position)))
        position += c.length;
    if (position == 0 || !line.substr(position).starts_with('.'))
        return std::nullopt;
    const auto digits = line.substr(0, position);
    const auto space = firstCodePoint(line.substr(position + 1));
    if (!isWhiteSpace(space.value))
        return std::nullopt;
    return NumberMarker {digits, position + 1 + space.length};
}

/// 1 if the number is too large or has digits of another script.
std::int64_t parseNumber(std::string_view digits)
{
    std::int64_t number = 1;
    const auto end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, number);
    return result.ec == std::errc() && result.ptr == end ? number : 1;
}

Block parseLine(std::string_view line)
{
    if (line.starts_with("# "))
        return {Block::Kind::Heading, std::string(line.substr(kMarkerLength))};
    if (line.starts_with("> "))
        return {Block::Kind::Blockquote, std::string(line.substr(kMarkerLength))};
    if (line.starts_with("- "))
        return {Block::Kind::Bullet, std::string(line.substr(kMarkerLength))};
    if (const auto marker = numberMarker(line))
        return {Block::Kind::NumberedItem, std::string(line.substr(marker->length)), parseNumber(marker->digits)};
    return {Block::Kind::Paragraph, std::string(line)};
}

} // namespace

std::vector<Block> parseMarkdown(std::string_view content)
{
    std::vector<Block> blocks;
    for (std::size_t start = 0; start < content.size();) {
        const auto end = std::min(content.find('\n', start), content.size());
        if (const auto line = trimBlanks(content.substr(start, end - start)); !line.empty())
            blocks.push_back(parseLine(line));
        start = end + 1;
    }
    return blocks;
}

} // namespace cuebright
