#include "markdown/InlineRuns.h"

#include <gtest/gtest.h>

#include <charconv>
#include <fstream>
#include <sstream>

namespace cuebright {
namespace {

std::string nextCell(std::istream& row)
{
    std::string cell;
    std::getline(row, cell, '\t');
    for (std::size_t i = cell.find('\\'); i < cell.size(); i = cell.find('\\', i + 1)) {
        cell.erase(i, 1);
        cell.at(i) = cell.at(i) == 't' ? '\t' : cell.at(i) == 'n' ? '\n' : cell.at(i);
    }
    return cell;
}

/// CommonMark's HTML has its links percent-encoded, runs have them as written.
std::string percentDecoded(std::string link)
{
    for (std::size_t i = link.find('%'); i < link.size(); i = link.find('%', i + 1)) {
        unsigned byte = 0;
        const auto* digits = link.data() + i + 1;
        if (i + 2 < link.size() && std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2)
            link.replace(i, 3, 1, static_cast<char>(byte));
    }
    return link;
}

TEST(CommonMarkExamples, EverySingleLineExampleOfInlineSyntaxGivesItsRuns)
{
    std::ifstream file(COMMONMARK_EXAMPLES);
    int count = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#'))
            continue;
        ++count;
        std::istringstream row(line);
        const auto number = nextCell(row);
        const auto section = nextCell(row);
        const auto text = nextCell(row);
        auto runs = renderInline(text);
        for (auto& run : runs)
            if (run.link)
                run.link = percentDecoded(*run.link);
        EXPECT_EQ(describe(runs), nextCell(row)) << "example " << number << ", " << section << ": " << text;
    }
    EXPECT_EQ(count, 247) << "the table " << COMMONMARK_EXAMPLES << " is not whole";
}

} // namespace
} // namespace cuebright
