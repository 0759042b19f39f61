#include "markdown/InlineParser.h"

#include <cmark.h>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

namespace cuebright {

namespace {

constexpr std::size_t kLongestText = 16'384;
constexpr std::ptrdiff_t kMostBrackets = 2000;

/// A word before and after the text keeps it a paragraph of one line whatever it holds; the blanks beside them look to
/// the parser like the line's ends.
constexpr std::string_view kFrameStart = "a ";
constexpr std::string_view kFrameEnd = " a";

/// What would end the line. The parser sees a blank in its place: one that the text neither holds nor spells as a
/// character reference, hence the number of them; none of these has a reference by name.
constexpr std::array<std::string_view, 2> kLineEnds {"\r", "\n"};
constexpr std::array<std::string_view, 7> kBlanks {"\f", "\u1680", "\u2000", "\u2001", "\u2006", "\u202f", "\u3000"};

std::string replacedAll(std::string_view text, std::string_view from, std::string_view to)
{
    std::string result;
    std::size_t start = 0;
    for (auto at = text.find(from); at != std::string_view::npos; at = text.find(from, start)) {
        result.append(text.substr(start, at - start)).append(to);
        start = at + from.size();
    }
    return result.append(text.substr(start));
}

bool mustStayPlain(std::string_view text)
{
    const auto isBracket = [](char c) { return c == '[' || c == ']'; };
    return text.size() > kLongestText || std::count_if(text.begin(), text.end(), isBracket) > kMostBrackets;
}

struct NodeDeleter {
    void operator()(cmark_node* node) const { cmark_node_free(node); }
};
struct IteratorDeleter {
    void operator()(cmark_iter* iterator) const { cmark_iter_free(iterator); }
};

bool looksLike(const InlineRun& a, const InlineRun& b)
{
    return a.isStrong == b.isStrong && a.isEmphasised == b.isEmphasised && a.isCode == b.isCode && a.link == b.link;
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

    [[nodiscard]] std::vector<InlineRun> take() { return std::move(m_runs); }

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
        InlineRun run {text, m_strong > 0, m_emphasis > 0, isCode, m_link};
        if (!m_runs.empty() && looksLike(run, m_runs.back()))
            m_runs.back().text += run.text;
        else
            m_runs.push_back(std::move(run));
    }

    std::vector<InlineRun> m_runs;
    int m_images = 0; ///< that we are in the description of
    int m_strong = 0;
    int m_emphasis = 0;
    std::optional<std::string> m_link;
};

std::vector<InlineRun> parsed(const std::string& framed)
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

void cutFrame(std::vector<InlineRun>& runs)
{
    runs.front().text.erase(0, kFrameStart.size());
    auto& last = runs.back().text;
    last.resize(last.size() - kFrameEnd.size());
    std::erase_if(runs, [](const InlineRun& run) { return run.text.empty(); });
}

std::vector<InlineRun> runsOfLine(std::string_view line)
{
    std::string framed(kFrameStart);
    framed.append(line).append(kFrameEnd);
    auto runs = parsed(framed);
    cutFrame(runs);
    return runs;
}

/// The blanks that occur in none of the texts, as many as there are line ends; fewer where they do not suffice.
std::vector<std::string_view> freeBlanks(std::string_view text, const std::vector<InlineRun>& runs)
{
    std::vector<std::string_view> blanks;
    for (const auto blank : kBlanks) {
        const auto holds = [blank](const InlineRun& run) { return run.text.find(blank) != std::string::npos; };
        const bool isFree = text.find(blank) == std::string_view::npos && std::none_of(runs.begin(), runs.end(), holds);
        if (isFree && blanks.size() < kLineEnds.size())
            blanks.push_back(blank);
    }
    return blanks;
}

std::vector<InlineRun> plainRun(std::string_view text)
{
    return {InlineRun {.text = std::string(text), .link = std::nullopt}};
}

std::vector<InlineRun> runsOfLines(std::string_view text)
{
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    const auto blanks = freeBlanks(text, runsOfLine(line));
    if (blanks.size() < kLineEnds.size())
        return plainRun(text);

    line = text;
    for (std::size_t i = 0; i < kLineEnds.size(); ++i)
        line = replacedAll(line, kLineEnds[i], blanks[i]);
    auto runs = runsOfLine(line);
    for (auto& run : runs)
        for (std::size_t i = 0; i < kLineEnds.size(); ++i)
            run.text = replacedAll(run.text, blanks[i], kLineEnds[i]);
    return runs;
}

} // namespace

std::vector<InlineRun> parseInline(std::string_view text)
{
    if (text.empty())
        return {};
    if (mustStayPlain(text))
        return plainRun(text);
    return text.find_first_of("\r\n") == std::string_view::npos ? runsOfLine(text) : runsOfLines(text);
}

} // namespace cuebright
