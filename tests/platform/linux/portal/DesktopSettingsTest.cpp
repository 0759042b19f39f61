#include "platform/linux/portal/DesktopSettings.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace cuebright::test {

namespace {

using Settings = std::vector<std::tuple<const char*, const char*, QVariant>>;

constexpr auto kNew = "org.freedesktop.appearance";
constexpr auto kGnome = "org.gnome.desktop.interface";
constexpr auto kGnomeAccess = "org.gnome.desktop.a11y.interface";
constexpr auto kKde = "org.kde.kdeglobals.KDE";
constexpr auto kFactor = "AnimationDurationFactor";

} // namespace

TEST(DesktopSettings, AreReadFromTheNewerKeysAndElseFromTheOlderOnes)
{
    const std::tuple<const char*, Settings, bool, bool, std::optional<bool>> cases[] = {
        {"all asked for", {{kNew, "reduced-motion", 1U}, {kNew, "contrast", 1U}, {kNew, "color-scheme", 1U}}, true,
            true, true},
        {"nothing asked for", {{kNew, "reduced-motion", 0U}, {kNew, "contrast", 0U}, {kNew, "color-scheme", 0U}}, false,
            false, {}},
        {"light", {{kNew, "color-scheme", 2U}}, false, false, false},
        {"wrong types",
            {{kNew, "reduced-motion", true}, {kNew, "contrast", QStringLiteral("1")}, {kNew, "color-scheme", 1.0},
                {kGnome, "enable-animations", 0U}, {kGnomeAccess, "high-contrast", 1U}, {kKde, kFactor, false}},
            false, false, {}},
        {"older keys", {{kGnome, "enable-animations", false}, {kGnomeAccess, "high-contrast", true}}, true, true, {}},
        {"newer keys win over a wish",
            {{kNew, "reduced-motion", 0U}, {kNew, "contrast", 0U}, {kGnome, "enable-animations", false},
                {kGnomeAccess, "high-contrast", true}, {kKde, kFactor, 0.0}},
            false, false, {}},
        {"newer keys win over the lack of one",
            {{kNew, "reduced-motion", 1U}, {kNew, "contrast", 1U}, {kGnome, "enable-animations", true},
                {kGnomeAccess, "high-contrast", false}},
            true, true, {}},
        {"a newer key of the wrong type",
            {{kNew, "reduced-motion", QStringLiteral("no")}, {kGnome, "enable-animations", false}}, true, false, {}},
        {"factor as text", {{kKde, kFactor, QStringLiteral("0.0")}}, true, false, {}},
        {"no factor", {{kKde, kFactor, QStringLiteral("")}}, false, false, {}},
        {"a key of that name elsewhere", {{"org.example", "contrast", 1U}, {kGnome, "high-contrast", true}}, false,
            false, {}},
    };
    for (const auto& [name, asked, reduceMotion, increaseContrast, isDark] : cases) {
        DesktopSettings settings;
        for (const auto& [group, key, value] : asked)
            settings.set(QString::fromUtf8(group), QString::fromUtf8(key), value);
        EXPECT_EQ(settings.reduceMotion(), reduceMotion) << name;
        EXPECT_EQ(settings.increaseContrast(), increaseContrast) << name;
        EXPECT_EQ(settings.isDark(), isDark) << name;
    }
}

} // namespace cuebright::test
