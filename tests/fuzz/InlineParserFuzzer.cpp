#include "Require.h"
#include "foundation/Unicode.h"
#include "markdown/InlineParser.h"

#include <algorithm>
#include <cstdint>

namespace {

using namespace cuebright;
using fuzz::require;

bool isValidUtf8(std::string_view text)
{
    while (!text.empty()) {
        const auto c = firstCodePoint(text);
        if (c.value == kInvalidCodePoint)
            return false;
        text.remove_prefix(c.length);
    }
    return true;
}

bool isPlain(const StyledRun& run) { return !run.isBold && !run.isItalic && !run.isCode && !run.link; }

bool looksLike(const StyledRun& a, const StyledRun& b)
{
    return a.isBold == b.isBold && a.isItalic == b.isItalic && a.isCode == b.isCode && a.link == b.link;
}

/// Contains no markers, character references, escapes or zero characters.
bool hasNoSyntax(std::string_view text)
{
    using namespace std::string_view_literals;
    return text.find_first_of("*_`[<&\\\0"sv) == std::string_view::npos;
}

/// An upper bound of the output: a zero character takes three bytes, a five-byte reference may take six.
std::size_t longestText(std::string_view text)
{
    const auto zeros = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\0'));
    const auto references = static_cast<std::size_t>(std::count(text.begin(), text.end(), '&'));
    return text.size() + 2 * zeros + references;
}

void checkText(std::string_view text)
{
    const auto runs = renderInline(text);
    std::size_t length = 0;
    for (const auto& run : runs) {
        length += run.text.size();
        require(!run.text.empty(), "every run has text");
        require(isValidUtf8(run.text), "text stays text");
        require(!run.link || isValidUtf8(*run.link), "links are text");
    }
    require(std::adjacent_find(runs.begin(), runs.end(), looksLike) == runs.end(), "neighbours differ");
    require(length <= longestText(text), "no text is made up");
    if (hasNoSyntax(text) && !text.empty())
        require(runs.size() == 1 && isPlain(runs.front()) && runs.front().text == text, "plain text stays as it is");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    if (isValidUtf8(text))
        checkText(text);
    else
        (void)renderInline(text);
    return 0;
}
