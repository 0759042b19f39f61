#include "foundation/Unicode.h"

#include <gtest/gtest.h>

namespace cuebright {

TEST(Unicode, ClassesOfCodePoints)
{
    const std::u32string blanks = U" \t\u00a0\u1680\u202f\u3000";
    const std::u32string otherWhiteSpace = U"\n\v\r\u0085\u2028\u2029";
    const std::u32string digits = U"09\u0663\uff17\U0001d7cf"; // of other scripts too
    // Similar ones: zero width space, byte order mark, superscript, roman numeral.
    const std::u32string others = std::u32string(U"\x1f\u200b\ufeff:\u00b2\u2160a\x110000") + kInvalidCodePoint;
    for (const auto c : blanks + otherWhiteSpace + digits + others) {
        const bool blank = blanks.find(c) != std::u32string::npos;
        EXPECT_EQ(isBlank(c), blank) << std::hex << std::uint32_t {c};
        EXPECT_EQ(isWhiteSpace(c), blank || otherWhiteSpace.find(c) != std::u32string::npos) << std::uint32_t {c};
        EXPECT_EQ(isDecimalDigit(c), digits.find(c) != std::u32string::npos) << std::hex << std::uint32_t {c};
    }
}

TEST(Unicode, CodePointsAtBothEnds)
{
    const auto ends = [](std::string_view text) {
        const auto first = firstCodePoint(text);
        const auto last = lastCodePoint(text);
        return std::tuple(first.value, first.length, last.value, last.length);
    };
    constexpr auto kBad = kInvalidCodePoint;
    EXPECT_EQ(ends(""), std::tuple(kBad, 0, kBad, 0));
    EXPECT_EQ(ends("az"), std::tuple('a', 1, 'z', 1));
    EXPECT_EQ(ends("\xc2\xa0\xe2\x80\xa8"), std::tuple(0xa0, 2, 0x2028, 3));
    EXPECT_EQ(ends("\xf0\x9f\x98\x80"), std::tuple(0x1f600, 4, 0x1f600, 4));
    EXPECT_EQ(ends("a\x80"), std::tuple('a', 1, kBad, 1));
    for (const auto* text : {"\x80", "\xe2\x80", "\xc0\x80", "\xed\xa0\x80", "\x80\x80\x80\x80\x80"})
        EXPECT_EQ(ends(text), std::tuple(kBad, 1, kBad, 1)) << testing::PrintToString(text);
}

TEST(Unicode, WordsAreWhatStandsBetweenWhiteSpace)
{
    const std::pair<const char*, std::size_t> cases[] = {{"", 0}, {" \n\r\t\u0085\u2028", 0},
        {"# Title\n\n- one  two", 5}, {"a\nb\vc\fd\re\r\nf\u0085g\u2028h\u2029i\u00a0j\u3000k", 11},
        {"a\u200bb\u0105\u00e0\u4f60", 1}, // whose bytes 0x85 and 0xa0 are no white space
        {"\xff\xfe", 1}};
    for (const auto& [text, words] : cases) {
        EXPECT_EQ(countWords(text), words) << text;
        EXPECT_EQ(isAllWhiteSpace(text), words == 0) << text;
    }
}

} // namespace cuebright
