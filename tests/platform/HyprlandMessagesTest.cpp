#include "platform/linux/HyprlandMessages.h"

#include <gtest/gtest.h>

namespace cuebright::test {

TEST(HyprlandMessages, VersionsAreReadFromEitherMember)
{
    using Version = std::optional<HyprlandVersion>;
    const std::pair<std::string_view, Version> cases[] = {
        {R"({"branch":"main","tag":"v0.52.1","version":"0.52.1"})", HyprlandVersion {0, 52}},
        {R"({"tag":"v0.53.0-12-gabcdef","version":""})", HyprlandVersion {0, 53}},
        {R"({"version":"1.2"})", HyprlandVersion {1, 2}},
        {R"({"version":"0.530"})", HyprlandVersion {0, 530}},
        {R"({"version":52})", std::nullopt},
        {R"({"version":"unknown","tag":"0"})", std::nullopt},
        {"Hyprland 0.52.1", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& [reply, version] : cases)
        EXPECT_EQ(hyprlandVersion(reply), version) << reply;
    EXPECT_LT((HyprlandVersion {0, 50}), (HyprlandVersion {1, 0}));
}

TEST(HyprlandMessages, TheRuleIsWrittenAsEachVersionUnderstandsIt)
{
    using enum HyprlandLanguage;
    const std::string pattern = "^(Cuebright|cuebright|app[.]cuebright[.]Cuebright)$";
    const std::string first = "/keyword windowrule noscreenshare, class:" + pattern;
    const std::string second = "/keyword windowrule match:class " + pattern + ", no_screen_share on";
    const std::string lua =
        R"(/eval hl.window_rule({ name="cuebright", match={ class=")" + pattern + R"(" }, no_screen_share=true }))";
    EXPECT_EQ(hyprlandRuleRequest({0, 50}, Classic), first);
    EXPECT_EQ(hyprlandRuleRequest({0, 52}, Classic), first);
    EXPECT_EQ(hyprlandRuleRequest({0, 53}, Classic), second);
    EXPECT_EQ(hyprlandRuleRequest({0, 56}, Classic), second);
    EXPECT_EQ(hyprlandRuleRequest({0, 55}, Lua), lua);
}

} // namespace cuebright::test
