#include "foundation/Uuid.h"

#include <gtest/gtest.h>

namespace cuebright {

TEST(Uuid, TheTextFormIsReadInAnyCaseAndWrittenWithUpperCaseDigits)
{
    const std::string text = "6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4B21";
    const auto uuid = Uuid::parse(text);
    ASSERT_TRUE(uuid);
    EXPECT_EQ(uuid->bytes.front(), 0x6b);
    EXPECT_EQ(uuid->bytes.back(), 0x21);
    EXPECT_EQ(uuid->text(), text);
    EXPECT_EQ(Uuid::parse("6b0f5c1e-3D0A-4e8B-9d55-2f7a1c9e4b21"), uuid);
}

TEST(Uuid, EverythingElseIsRefused)
{
    constexpr std::string_view kBad[] = {
        "",
        "6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4B2", // a digit short
        "6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4B210", // a digit too many
        "6B0F5C1E3D0A4E8B9D552F7A1C9E4B21", // no hyphens
        "6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4BG1", // no digit
        "6B0F5C1-E3D0A-4E8B-9D55-2F7A1C9E4B21", // hyphen displaced
        "6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4\xc3\xa9", // a letter beyond ASCII
    };
    for (const auto text : kBad)
        EXPECT_FALSE(Uuid::parse(text)) << text;
}

} // namespace cuebright
