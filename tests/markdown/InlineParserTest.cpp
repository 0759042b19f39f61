#include "markdown/InlineParser.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace cuebright {

/// Runs in one line: plain text as it is, styled text as ⟨strong em code link=target|text⟩ with what applies.
std::string describe(const std::vector<StyledRun>& runs)
{
    std::string line;
    for (const auto& run : runs) {
        std::string styles;
        const auto add = [&styles](std::string_view style) { (styles += styles.empty() ? "" : " ") += style; };
        if (run.isBold)
            add("strong");
        if (run.isItalic)
            add("em");
        if (run.isCode)
            add("code");
        if (run.link)
            add("link=" + *run.link);
        line += styles.empty() ? run.text : "⟨" + styles + "|" + run.text + "⟩";
    }
    return line;
}

void PrintTo(const StyledRun& run, std::ostream* out) { *out << describe({run}); }

namespace {

void expectRuns(const std::vector<std::pair<std::string_view, std::string_view>>& cases)
{
    for (const auto& [text, runs] : cases)
        EXPECT_EQ(describe(renderInline(text)), runs) << "of " << testing::PrintToString(text);
}

/// Expects one plain run with the same text.
void expectUnchanged(const std::vector<std::string_view>& texts)
{
    for (const auto text : texts) {
        const std::vector<StyledRun> itself {{.text = std::string(text)}};
        EXPECT_EQ(renderInline(text), itself) << "of " << testing::PrintToString(text.substr(0, 100));
    }
}

std::string repeated(std::string_view part, int times)
{
    std::string text;
    for (int i = 0; i < times; ++i)
        text += part;
    return text;
}

/// Whether `part` is a subsequence of `whole`.
bool isLeftOver(std::string_view part, std::string_view whole)
{
    auto next = part.begin();
    for (auto c = whole.begin(); c != whole.end() && next != part.end(); ++c)
        next += *c == *next ? 1 : 0;
    return next == part.end();
}

} // namespace

TEST(InlineParser, MarkersBecomeTheLooksOfTheTextBetweenThem)
{
    expectRuns({
        {"**bold** and *it*", "⟨strong|bold⟩ and ⟨em|it⟩"},
        {"use `x` here", "use ⟨code|x⟩ here"},
        {"[site](page)", "⟨link=page|site⟩"},
        {"see <https://example.org>.", "see ⟨link=https://example.org|https://example.org⟩."},
        {"*a **b** c*", "⟨em|a ⟩⟨strong em|b⟩⟨em| c⟩"},
        {"**a *b* c**", "⟨strong|a ⟩⟨strong em|b⟩⟨strong| c⟩"},
        {"**[a `b` *c*](d)**", "⟨strong link=d|a ⟩⟨strong code link=d|b⟩⟨strong link=d| ⟩⟨strong em link=d|c⟩"},
        {"`**a** [b](c) &amp;`", "⟨code|**a** [b](c) &amp;⟩"},
        {"\\*a\\* &amp; &#x1F600;", "*a* & 😀"},
    });
}

TEST(InlineParser, WhiteSpaceStaysAtBothEndsAndInside)
{
    expectUnchanged(
        {" ", "   ", "\t", "  a  ", "\ta\t", "a   b", "a \t b", "a  ", "\xc2\xa0 a\xc2\xa0", "\xe3\x80\x80"});
    expectRuns({
        {"  **a**  ", "  ⟨strong|a⟩  "},
        {" *a*  _b_ ", " ⟨em|a⟩  ⟨em|b⟩ "},
        {"a **b **", "a **b **"},
        {"`a`  ", "⟨code|a⟩  "},
    });
}

TEST(InlineParser, NothingStartsABlock)
{
    expectUnchanged({"1. first", "1) first", "# title", "## title", "#", "- item", "+ item", "> quote",
        "    four spaces", "\ttab", "```", "```cpp", "~~~", "---", "***", "===", "- - -", "[a]: b", "[a]: b \"c\"",
        "<div>", "<!-- a -->", "<script>", "| a | b |", "1.", "-", "a  \\", "- [ ] task"});
    expectRuns({{"# **a**", "# ⟨strong|a⟩"}, {"    *a*", "    ⟨em|a⟩"}, {"<div>*a*", "<div>⟨em|a⟩"}});
}

TEST(InlineParser, LineEndsAreCharactersLikeOthers)
{
    expectUnchanged({"\r", "a\r", "a\r# b", "a\r    b", "a\r\r- b", "a\r---", "  \ra  \r", "a  \nb", "\n# a\n",
        "a\\\rb", "a\r\nb", "a\vb\fc", "a\fb\rc", "a\xc2\x85# b", "a\xe2\x80\xa8# b", "a\xe2\x80\xa9- b"});
    expectRuns({
        {"```\ra\r```", "⟨code|\ra\r⟩"},
        {"*a\rb*\r", "⟨em|a\rb⟩\r"},
        {"[a\rb](c)", "⟨link=c|a\rb⟩"},
        {"<a\rhref='b'>", "<a\rhref='b'>"},
        {"**a**\r\n`b`", "⟨strong|a⟩\r\n⟨code|b⟩"},
    });
}

TEST(InlineParser, ABlankThatIsSpeltIsNotTakenForALineEnd)
{
    expectRuns({
        {"a&#12;b\r", "a\fb\r"},
        {"a&#x1680;b\f\r&#x2000;\n", "a\u1680b\f\r\u2000\n"},
        {"a&MediumSpace;b", "a\u205fb"},
        {"a&#13;b&#10;c\r", "a\rb\nc\r"},
    });
    const std::string everyBlank = "*a*\r&#12;&#x1680;&#x2000;&#x2001;&#x2006;&#x202f;&#x3000;";
    expectUnchanged({everyBlank});
}

TEST(InlineParser, LinksLeadWhereTheyAreWritten)
{
    expectRuns({
        {"[a](javascript:alert(1))", "⟨link=javascript:alert(1)|a⟩"},
        {"[a](file:///etc/passwd)", "⟨link=file:///etc/passwd|a⟩"},
        {"<made-up:b>", "⟨link=made-up:b|made-up:b⟩"},
        {"<me@example.org>", "⟨link=mailto:me@example.org|me@example.org⟩"},
        {"[a](?x=1&amp;y=2)", "⟨link=?x=1&y=2|a⟩"},
        {"[a](ü)", "⟨link=ü|a⟩"},
        {"[a]()", "⟨link=|a⟩"},
        {"[](b)", ""},
        {"[]()", ""},
        {"x[](b)y", "xy"},
        {"[a](b)[c](b)", "⟨link=b|ac⟩"},
        {"[a [b](c) d](e)", "[a ⟨link=c|b⟩ d](e)"},
    });
}

TEST(InlineParser, AnImageIsItsDescriptionWithoutStyles)
{
    expectRuns({
        {"![a](b)", "a"},
        {"![](b)", ""},
        {"x ![a *b* `c` **d**](e) y", "x a b c d y"},
        {"![a [b](c) d](e)", "a b d"},
        {"![a ![b *c*](d) *e*](f) *g*", "a b c e ⟨em|g⟩"},
        {"**![a](b)**", "⟨strong|a⟩"},
        {"[![a](b) c](d)", "⟨link=d|a c⟩"},
        {"*a ![*b*](c) d*", "⟨em|a b d⟩"},
    });
}

TEST(InlineParser, OtherScriptsStayAsTheyAreAndTheZeroCharacterIsReplaced)
{
    expectUnchanged({"e\u0301 a\u0308\u0323", // combining
        "👩\u200d👧", // joined
        "\u202a\u202eשל \u202c", "می\u200cخو", "\ufeffa", "\U000e0001"});
    expectRuns({
        {"**שלום** *سلام*", "⟨strong|שלום⟩ ⟨em|سلام⟩"},
        {"*e\u0301*", "⟨em|e\u0301⟩"},
        {"*a*\u0301", "⟨em|a⟩\u0301"},
        {"*\u200d*", "⟨em|\u200d⟩"},
        {"*\u00a0a*", "*\u00a0a*"},
        {"_ä_ö_", "⟨em|ä_ö⟩"},
        {std::string_view("*a*\0b", 5), "⟨em|a⟩\ufffdb"},
        {"&#0;", "\ufffd"},
    });
}

TEST(InlineParser, HtmlIsTextAndHidesMarkersAndWhatIsNoMarkupStaysAsItIs)
{
    expectUnchanged({R"(<a href="/bar\*">)", R"(<a href="&ouml;.html">)", R"(<a href="`">`)", "<a><bab><c2c>",
        "<a/><b2/>", R"(*<img src="a" title="*"/>)", R"(**<a href="**">)", R"x([a <b c="](d)">)x", "</a></foo >",
        "a <!-- b -- c -->", "a <?php echo $a; ?>", "a <!ELEMENT br EMPTY>", "a <![CDATA[>&<]]>", "<>",
        "< http://a.b >", "<m:abc>", "<a.b.c>", "http://a.b", "me@a.b", "a\\", "&copy", "&NoName;", "[a](/my uri)",
        "[a] (/b)", "[a](/b \"c \"d\" e\")", "```a``", "`a", "a * b*", "a_b_c", "5__6__78", "_a*", "** a **", "*a *",
        "____ a"});
    expectRuns({{"[a](</my uri> \"title\")", "⟨link=/my uri|a⟩"}, {"[a](b(c)d)", "⟨link=b(c)d|a⟩"},
        {"<http://a.b?c=\\*>", "⟨link=http://a.b?c=\\*|http://a.b?c=\\*⟩"}, {"``a`b``", "⟨code|a`b⟩"},
        {"` `` `", "⟨code|``⟩"}, {"*a `*`*", "⟨em|a ⟩⟨em code|*⟩"}, {"***a** b*", "⟨strong em|a⟩⟨em| b⟩"},
        {"**a*", "*⟨em|a⟩"}, {"[a`](b)`", "[a⟨code|](b)⟩"}, {"*[a*](b)", "*⟨link=b|a*⟩"}});
}

TEST(InlineParser, WhatCouldTakeSecondsIsOnePlainRunAndWhatIsJustShortEnoughIsParsed)
{
    const auto brackets = repeated("[]", 1'000);
    expectUnchanged({std::string(10'000, '['), repeated("![[]()", 10'000),
        repeated("[", 10'000) + "a" + repeated("](b)", 10'000), brackets + "]*a*", "*a*" + std::string(16'382, 'b')});
    const std::string longWord(16'381, 'b');
    EXPECT_EQ(describe(renderInline("*a*" + longWord)), "⟨em|a⟩" + longWord);
    EXPECT_EQ(describe(renderInline(brackets + "*a*")), brackets + "⟨em|a⟩");
}

TEST(InlineParser, NeverInventsTextAndNeverLeavesNeighboursAlike)
{
    const std::string_view parts[] = {"*", "**", "_", "`", "``", "[", "](b)", "![", "]", "<a>", "<a:b>", "\\", " ", "x",
        "\xc3\xa9", "\r", "#", "\"", "~", "\t"};
    // 20,000 pseudo-random combinations of six parts.
    std::uint64_t state = 1;
    for (int i = 0; i < 20'000; ++i) {
        std::string text;
        for (int part = 0; part < 6; ++part) {
            state = state * 6364136223846793005U + 1442695040888963407U;
            text += parts[(state >> 33U) % std::size(parts)];
        }
        std::string shown;
        StyledRun former;
        for (const auto& run : renderInline(text)) {
            EXPECT_FALSE(run.text.empty()) << testing::PrintToString(text);
            former.text = run.text;
            EXPECT_TRUE(shown.empty() || former != run) << testing::PrintToString(text);
            former = run;
            shown += run.text;
        }
        EXPECT_TRUE(isLeftOver(shown, text)) << shown << "\nof " << testing::PrintToString(text);
    }
}

} // namespace cuebright
