#include "markdown/CardParser.h"

#include <gtest/gtest.h>

#include <ostream>

namespace cuebright {

void PrintTo(const Block& block, std::ostream* out)
{
    constexpr std::string_view kNames[] = {"heading", "bullet", "numberedItem", "blockquote", "paragraph"};
    *out << kNames[static_cast<std::size_t>(block.kind)] << '(' << block.text << ", " << block.number << ')';
}

namespace {

using Blocks = std::vector<Block>;

Block heading(std::string text) { return {Block::Kind::Heading, std::move(text)}; }
Block bullet(std::string text) { return {Block::Kind::Bullet, std::move(text)}; }
Block quote(std::string text) { return {Block::Kind::Blockquote, std::move(text)}; }
Block paragraph(std::string text) { return {Block::Kind::Paragraph, std::move(text)}; }
Block item(std::int64_t number, std::string text) { return {Block::Kind::NumberedItem, std::move(text), number}; }

void expectBlocks(const std::vector<std::pair<std::string_view, Blocks>>& cases)
{
    for (const auto& [content, expected] : cases)
        EXPECT_EQ(parseMarkdown(content), expected) << testing::PrintToString(content);
}

} // namespace

TEST(CardParser, EachMarkerMakesItsKindOfBlockAndTheTextBehindItIsNotTrimmedAgain)
{
    expectBlocks({
        {"line one\nline two", {paragraph("line one"), paragraph("line two")}},
        {"# T\n\n- a\n> b\n3. c\n7. d\ne",
            {heading("T"), bullet("a"), quote("b"), item(3, "c"), item(7, "d"), paragraph("e")}},
        {"#   Title\n-  - item", {heading("  Title"), bullet(" - item")}},
        {"> > quote\n1.  First", {quote("> quote"), item(1, " First")}},
    });
}

TEST(CardParser, WhatOnlyLooksLikeAMarkerIsAParagraph)
{
    expectBlocks({
        {"## Title", {paragraph("## Title")}}, {"#Title", {paragraph("#Title")}}, {"-item", {paragraph("-item")}},
        {"* item", {paragraph("* item")}}, {"+ item", {paragraph("+ item")}}, {">quote", {paragraph(">quote")}},
        {"#\tTitle", {paragraph("#\tTitle")}}, {"#\xc2\xa0Title", {paragraph("#\xc2\xa0Title")}},
        {"- ", {paragraph("-")}}, {"# \n> ", {paragraph("#"), paragraph(">")}}, {"1.First", {paragraph("1.First")}},
        {"1.", {paragraph("1.")}}, {"1. ", {paragraph("1.")}}, {"1) First", {paragraph("1) First")}},
        {"a1. First", {paragraph("a1. First")}}, {". First", {paragraph(". First")}},
        {"-1. First", {paragraph("-1. First")}},
        {"1.\xe2\x80\x8b First", {paragraph("1.\xe2\x80\x8b First")}}, // zero width space
    });
}

TEST(CardParser, LinesAreTrimmedBeforeTheyAreLookedAtAndBlankOnesMakeNoBlock)
{
    expectBlocks({
        {"", {}},
        {" \t\xc2\xa0\xe3\x80\x80", {}},
        {"\n\na\n\n  \nb\n", {paragraph("a"), paragraph("b")}},
        {"  > quote  \n    - item", {quote("quote"), bullet("item")}},
        {"\t12.\tTwelve\t", {item(12, "Twelve")}},
        {"\xe3\x80\x80# Title\xc2\xa0", {heading("Title")}},
    });
}

TEST(CardParser, OnlyTheLineFeedSeparatesLines)
{
    expectBlocks({
        {"a\r\nb", {paragraph("a\r"), paragraph("b")}},
        {"a\rb", {paragraph("a\rb")}},
        {"a\xe2\x80\xa8# b", {paragraph("a\xe2\x80\xa8# b")}},
        {"\r", {paragraph("\r")}},
        {"# \r\n", {heading("\r")}},
    });
}

TEST(CardParser, NumbersAreTakenAsWrittenAndAreOneWhereTheyDoNotFit)
{
    expectBlocks({
        {"007. x", {item(7, "x")}},
        {"0. x", {item(0, "x")}},
        {"9223372036854775807. x", {item(9223372036854775807, "x")}},
        {"9223372036854775808. x", {item(1, "x")}},
        {"99999999999999999999. big", {item(1, "big")}},
        {"\xd9\xa3. x", {item(1, "x")}}, // arabic-indic three
        {"3\xef\xbc\x92. x", {item(1, "x")}}, // 3, fullwidth 2
        {"1.\rx", {item(1, "x")}},
        {"1.\r", {item(1, "")}},
        {"2.\xc2\xa0x", {item(2, "x")}},
        {"3.\xe2\x80\xa8x", {item(3, "x")}},
        {"4.\xe3\x80\x80 x", {item(4, " x")}},
        {"5.\vx", {item(5, "x")}},
    });
}

TEST(CardParser, InlineMarkersOtherScriptsAndBytesThatAreNoTextStayAsTheyAre)
{
    expectBlocks({
        {"- **bold** `code` [a](b)", {bullet("**bold** `code` [a](b)")}},
        {"# \xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d", {heading("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d")}},
        {"\xf0\x9f\x98\x80 # x", {paragraph("\xf0\x9f\x98\x80 # x")}},
        {"- \xff\xfe", {bullet("\xff\xfe")}},
        {"1\xff. x", {paragraph("1\xff. x")}},
        {std::string_view("a\0b\nc", 5), {paragraph(std::string("a\0b", 3)), paragraph("c")}},
    });
}

} // namespace cuebright
