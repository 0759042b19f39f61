#include "panel/TextConversion.h"

#include <gtest/gtest.h>

namespace cuebright {

TEST(TextConversion, UnpairedSurrogatesBecomeReplacementCharacters)
{
    const QChar high(0xd83d);
    const QChar low(0xde00);
    EXPECT_EQ(toUtf8(QString(high) + low), "😀");
    EXPECT_EQ(toUtf8(QString(high)), "\xef\xbf\xbd");
    EXPECT_EQ(toUtf8(QString(low) + high + QLatin1Char('a')),
        "\xef\xbf\xbd\xef\xbf\xbd"
        "a");
    EXPECT_EQ(toUtf8(QString(high) + high + low), "\xef\xbf\xbd😀");
}

TEST(TextConversion, TextsSurviveBothWays)
{
    for (const auto& text : {std::string("a\0b", 3), std::string("\r\n\t"), std::string("e\u0301 \u00a0 \u2028"),
             std::string("שלום 👩‍👩‍👧"), std::string("\ufeffx")})
        EXPECT_EQ(toUtf8(toQString(text)), text);
}

TEST(TextConversion, NamesStayOneLineAndKeepTheirAmpersands)
{
    EXPECT_EQ(toActionText("Q&A\tone\ntwo"), QStringLiteral("Q&&A one two"));
    EXPECT_EQ(toWindowTitle("Cuebright — [*] a&b\n"), QStringLiteral("Cuebright — [*][*] a&b "));
}

} // namespace cuebright
