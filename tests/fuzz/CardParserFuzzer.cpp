#include "Require.h"
#include "markdown/CardParser.h"

#include <algorithm>

namespace {

using namespace cuebright;
using fuzz::require;

std::size_t lineCount(std::string_view text)
{
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
}

std::size_t textLength(const std::vector<Block>& blocks)
{
    std::size_t length = 0;
    for (const auto& block : blocks)
        length += block.text.size();
    return length;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view content(reinterpret_cast<const char*>(data), size);
    const auto blocks = parseMarkdown(content);
    require(blocks.size() <= lineCount(content), "no line makes more than one block");
    require(textLength(blocks) <= content.size(), "no block makes up text");
    for (const auto& block : blocks) {
        require(block.text.find('\n') == std::string::npos, "no block spans lines");
        require(content.find(block.text) != std::string_view::npos, "a block's text is a piece of the content");
        require(block.number == 0 || block.kind == Block::Kind::NumberedItem, "only numbered items have a number");
        require(block.number >= 0, "no number is negative");
        if (block.kind == Block::Kind::Paragraph)
            require(parseMarkdown(block.text) == std::vector {block}, "a paragraph parses to itself");
    }
    return 0;
}
