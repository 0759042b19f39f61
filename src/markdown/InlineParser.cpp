#include "markdown/InlineParser.h"

#include <cmark.h>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

namespace cuebright {

namespace {

constexpr std::size_t kMaxLength = 16'384;
constexpr std::ptrdiff_t kMaxBrackets = 2000;

/// With a word before and after it, any text is a paragraph to cmark; the spaces act as the ends of a line would.
constexpr std::string_view kFrameStart = "a ";
constexpr std::string_view kFrameEnd = " a";

/// cmark would treat a line break as a soft break. Each is replaced, before parsing, by a rare space that occurs in the
/// text neither literally nor as a numeric reference, and restored afterwards. No space listed here has a named
/// reference.
constexpr std::array<std::string_view, 2> kLineEnds {"\r", "\n"};
constexpr std::array<std::string_view, 7> kRareSpaces {
    "\f", "\u1680", "\u2000", "\u2001", "\u2006", "\u202f", "\u3000"};

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to)
{
    std::string result;
    std::size_t start = 0;
    for (auto at = text.find(from); at != std::string_view::npos; at = text.find(from, start)) {
        result.append(text.substr(start, at - start)).append(to);
        start = at + from.size();
    }
    return result.append(text.substr(start));
}

bool isTooComplex(std::string_view text)
{
    const auto isBracket = [](char c) { return c == '[' || c == ']'; };
    return text.size() > kMaxLength || std::count_if(text.begin(), text.end(), isBracket) > kMaxBrackets;
}

struct NodeDeleter {
    void operator()(cmark_node* node) const { cmark_node_free(node); }
};
struct IteratorDeleter {
    void operator()(cmark_iter* iterator) const { cmark_iter_free(iterator); }
};

bool haveSameStyle(const StyledRun& a, const StyledRun& b)
{
    return a.isBold == b.isBold && a.isItalic == b.isItalic && a.isCode == b.isCode && a.link == b.link;
}

class RunCollector final {
public:
    void enter(cmark_node* node)
    {
        switch (cmark_node_get_type(node)) {
        case CMARK_NODE_IMAGE:
            ++m_images;
            return;
        case CMARK_NODE_TEXT:
        case CMARK_NODE_HTML_INLINE:
            return add(cmark_node_get_literal(node), false);
        case CMARK_NODE_CODE:
            return add(cmark_node_get_literal(node), !isInDescription());
        default:
            if (!isInDescription())
                enterStyle(node);
            return;
        }
    }

    void leave(cmark_node* node)
    {
        if (cmark_node_get_type(node) == CMARK_NODE_IMAGE)
            --m_images;
        else if (!isInDescription())
            leaveStyle(node);
    }

    [[nodiscard]] std::vector<StyledRun> take() { return std::move(m_runs); }

private:
    [[nodiscard]] bool isInDescription() const { return m_images > 0; }

    void enterStyle(cmark_node* node)
    {
        const auto type = cmark_node_get_type(node);
        if (type == CMARK_NODE_STRONG)
            ++m_strong;
        else if (type == CMARK_NODE_EMPH)
            ++m_emphasis;
        else if (type == CMARK_NODE_LINK)
            m_link = cmark_node_get_url(node);
    }

    void leaveStyle(cmark_node* node)
    {
        const auto type = cmark_node_get_type(node);
        if (type == CMARK_NODE_STRONG)
            --m_strong;
        else if (type == CMARK_NODE_EMPH)
            --m_emphasis;
        else if (type == CMARK_NODE_LINK)
            m_link.reset(); // links do not nest
    }

    void add(const char* text, bool isCode)
    {
        if (*text == '\0')
            return;
        StyledRun run {text, m_strong > 0, m_emphasis > 0, isCode, m_link};
        if (!m_runs.empty() && haveSameStyle(run, m_runs.back()))
            m_runs.back().text += run.text;
        else
            m_runs.push_back(std::move(run));
    }

    std::vector<StyledRun> m_runs;
    int m_images = 0; ///< nesting depth of image descriptions
    int m_strong = 0;
    int m_emphasis = 0;
    std::optional<std::string> m_link;
};

std::vector<StyledRun> parse(const std::string& framed)
{
    const std::unique_ptr<cmark_node, NodeDeleter> document(
        cmark_parse_document(framed.data(), framed.size(), CMARK_OPT_DEFAULT));
    const std::unique_ptr<cmark_iter, IteratorDeleter> iterator(cmark_iter_new(document.get()));
    RunCollector collector;
    for (auto event = cmark_iter_next(iterator.get()); event != CMARK_EVENT_DONE;
         event = cmark_iter_next(iterator.get())) {
        if (event == CMARK_EVENT_ENTER)
            collector.enter(cmark_iter_get_node(iterator.get()));
        else
            collector.leave(cmark_iter_get_node(iterator.get()));
    }
    return collector.take();
}

void removeFrame(std::vector<StyledRun>& runs)
{
    runs.front().text.erase(0, kFrameStart.size());
    auto& last = runs.back().text;
    last.resize(last.size() - kFrameEnd.size());
    std::erase_if(runs, [](const StyledRun& run) { return run.text.empty(); });
}

std::vector<StyledRun> parseLine(std::string_view line)
{
    std::string framed(kFrameStart);
    framed.append(line).append(kFrameEnd);
    auto runs = parse(framed);
    removeFrame(runs);
    return runs;
}

/// Rare spaces that occur neither in `text` nor in `runs`: one for each kind of line end, or fewer if all are in use.
std::vector<std::string_view> unusedSpaces(std::string_view text, const std::vector<StyledRun>& runs)
{
    std::vector<std::string_view> spaces;
    for (const auto space : kRareSpaces) {
        const auto holds = [space](const StyledRun& run) { return run.text.find(space) != std::string::npos; };
        const bool isUnused =
            text.find(space) == std::string_view::npos && std::none_of(runs.begin(), runs.end(), holds);
        if (isUnused && spaces.size() < kLineEnds.size())
            spaces.push_back(space);
    }
    return spaces;
}

std::vector<StyledRun> plainRun(std::string_view text) { return {StyledRun {.text = std::string(text)}}; }

std::vector<StyledRun> parseLines(std::string_view text)
{
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    const auto spaces = unusedSpaces(text, parseLine(line));
    if (spaces.size() < kLineEnds.size())
        return plainRun(text);

    line = text;
    for (std::size_t i = 0; i < kLineEnds.size(); ++i)
        line = replaceAll(line, kLineEnds[i], spaces[i]);
    auto runs = parseLine(line);
    for (auto& run : runs)
        for (std::size_t i = 0; i < kLineEnds.size(); ++i)
            run.text = replaceAll(run.text, spaces[i], kLineEnds[i]);
    return runs;
}

} // namespace

std::vector<StyledRun> renderInline(std::string_view text)
{
    if (text.empty())
        return {};
    if (isTooComplex(text))
        return plainRun(text);
    return text.find_first_of("\r\n") == std::string_view::npos ? parseLine(text) : parseLines(text);
}

} // namespace cuebright
