#include "foundation/Unicode.h"

#include <gtest/gtest.h>

namespace cuebright {

TEST(Unicode, ClassesOfCodePoints)
{
    const struct {
        const char* name;
        char32_t value;
        bool blank;
        bool whiteSpace;
        bool digit;
    } kCases[] = {
        {"blank", ' ', true, true, false},
        {"tab", '\t', true, true, false},
        {"line feed", '\n', false, true, false},
        {"vertical tab", '\v', false, true, false},
        {"carriage return", '\r', false, true, false},
        {"information separator", 0x1f, false, false, false},
        {"next line", 0x85, false, true, false},
        {"no-break space", 0xa0, true, true, false},
        {"ogham space mark", 0x1680, true, true, false},
        {"zero width space", 0x200b, false, false, false},
        {"line separator", 0x2028, false, true, false},
        {"paragraph separator", 0x2029, false, true, false},
        {"narrow no-break space", 0x202f, true, true, false},
        {"ideographic space", 0x3000, true, true, false},
        {"byte order mark", 0xfeff, false, false, false},
        {"zero", '0', false, false, true},
        {"nine", '9', false, false, true},
        {"character after nine", ':', false, false, false},
        {"arabic-indic three", 0x0663, false, false, true},
        {"fullwidth seven", 0xff17, false, false, true},
        {"mathematical bold one", 0x1d7cf, false, false, true},
        {"superscript two", 0xb2, false, false, false},
        {"roman numeral one", 0x2160, false, false, false},
        {"letter", 'a', false, false, false},
        {"beyond the last code point", 0x110000, false, false, false},
        {"no code point", kInvalidCodePoint, false, false, false},
    };
    for (const auto& c : kCases) {
        EXPECT_EQ(isBlank(c.value), c.blank) << c.name;
        EXPECT_EQ(isWhiteSpace(c.value), c.whiteSpace) << c.name;
        EXPECT_EQ(isDecimalDigit(c.value), c.digit) << c.name;
    }
}

TEST(Unicode, CodePointsAtBothEnds)
{
    const struct {
        const char* name;
        std::string_view text;
        CodePoint first;
        CodePoint last;
    } kCases[] = {
        {"empty", "", {kInvalidCodePoint, 0}, {kInvalidCodePoint, 0}},
        {"one byte each", "az", {'a', 1}, {'z', 1}},
        {"two and three bytes", "\xc2\xa0\xe2\x80\xa8", {0xa0, 2}, {0x2028, 3}},
        {"four bytes", "\xf0\x9f\x98\x80", {0x1f600, 4}, {0x1f600, 4}},
        {"lone continuation byte", "\x80", {kInvalidCodePoint, 1}, {kInvalidCodePoint, 1}},
        {"cut sequence", "\xe2\x80", {kInvalidCodePoint, 1}, {kInvalidCodePoint, 1}},
        {"overlong", "\xc0\x80", {kInvalidCodePoint, 1}, {kInvalidCodePoint, 1}},
        {"surrogate", "\xed\xa0\x80", {kInvalidCodePoint, 1}, {kInvalidCodePoint, 1}},
        {"five continuation bytes", "\x80\x80\x80\x80\x80", {kInvalidCodePoint, 1}, {kInvalidCodePoint, 1}},
        {"letter before a stray byte", "a\x80", {'a', 1}, {kInvalidCodePoint, 1}},
    };
    for (const auto& c : kCases) {
        EXPECT_EQ(firstCodePoint(c.text).value, c.first.value) << c.name;
        EXPECT_EQ(firstCodePoint(c.text).length, c.first.length) << c.name;
        EXPECT_EQ(lastCodePoint(c.text).value, c.last.value) << c.name;
        EXPECT_EQ(lastCodePoint(c.text).length, c.last.length) << c.name;
    }
}

TEST(Unicode, TrimmingTakesBlanksOfAllScriptsButNoLineBreaks)
{
    EXPECT_EQ(trimBlanks(" \t\xc2\xa0 a b\xe3\x80\x80 "), "a b");
    EXPECT_EQ(trimBlanks("\r a \n"), "\r a \n");
    EXPECT_EQ(trimBlanks(" \xe3\x80\x80\t"), "");
    EXPECT_EQ(trimBlanks(""), "");
    EXPECT_EQ(trimBlanks(" \xa0 "), "\xa0") << "half of a no-break space is no blank";
}

TEST(Unicode, ATextOfNothingButWhiteSpace)
{
    EXPECT_TRUE(isAllWhiteSpace(""));
    EXPECT_TRUE(isAllWhiteSpace(" \n\r\t\xc2\x85\xe2\x80\xa8"));
    EXPECT_FALSE(isAllWhiteSpace(" \xe2\x80\x8b ")) << "zero width space";
    EXPECT_FALSE(isAllWhiteSpace("  \xff"));
}

TEST(Unicode, WordsAreWhatStandsBetweenWhiteSpace)
{
    EXPECT_EQ(countWords(""), 0U);
    EXPECT_EQ(countWords(" \n "), 0U);
    EXPECT_EQ(countWords("# Title\n\n- one  two"), 5U);
    EXPECT_EQ(countWords("one\xe2\x80\xa8two\xc2\xa0three"), 3U);
    EXPECT_EQ(countWords("\xff\xfe"), 1U);
}

} // namespace cuebright
