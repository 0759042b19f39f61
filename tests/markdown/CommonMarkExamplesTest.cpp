#include "markdown/InlineRuns.h"

#include <gtest/gtest.h>

#include <charconv>
#include <fstream>

namespace cuebright {
namespace {

struct Example {
    std::string number;
    std::string section;
    std::string text;
    std::string runs;
};

std::string unescaped(std::string_view cell)
{
    std::string text;
    for (std::size_t i = 0; i < cell.size(); ++i) {
        if (cell[i] != '\\') {
            text += cell[i];
            continue;
        }
        const char c = cell.at(++i);
        text += c == 't' ? '\t' : c == 'n' ? '\n' : c;
    }
    return text;
}

std::string nextCell(std::string_view& row)
{
    const auto tab = row.find('\t');
    const auto cell = row.substr(0, tab);
    row.remove_prefix(tab == std::string_view::npos ? row.size() : tab + 1);
    return unescaped(cell);
}

std::vector<Example> examples()
{
    std::vector<Example> result;
    std::ifstream file(COMMONMARK_EXAMPLES);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#'))
            continue;
        std::string_view row = line;
        Example example;
        for (auto* cell : {&example.number, &example.section, &example.text, &example.runs})
            *cell = nextCell(row);
        result.push_back(std::move(example));
    }
    return result;
}

/// CommonMark's HTML has its links percent-encoded, runs have them as written.
std::string percentDecoded(std::string_view link)
{
    std::string decoded;
    for (std::size_t i = 0; i < link.size(); ++i) {
        unsigned byte = 0;
        const auto* digits = link.data() + i + 1;
        const bool isEncoded =
            link[i] == '%' && i + 2 < link.size() && std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2;
        decoded += isEncoded ? static_cast<char>(byte) : link[i];
        i += isEncoded ? 2 : 0;
    }
    return decoded;
}

std::string describeDecoded(std::vector<InlineRun> runs)
{
    for (auto& run : runs)
        if (run.link)
            run.link = percentDecoded(*run.link);
    return describe(runs);
}

TEST(CommonMarkExamples, EverySingleLineExampleOfInlineSyntaxGivesItsRuns)
{
    const auto all = examples();
    EXPECT_EQ(all.size(), 247U) << "the table " << COMMONMARK_EXAMPLES << " is not whole";
    for (const auto& example : all)
        EXPECT_EQ(describeDecoded(parseInline(example.text)), example.runs)
            << "example " << example.number << ", " << example.section << ": " << example.text;
}

} // namespace
} // namespace cuebright
