#include "platform/linux/DesktopSettings.h"

#include <gtest/gtest.h>

#include <vector>

namespace cuebright::test {

namespace {

struct Setting {
    const char* group;
    const char* key;
    QVariant value;
};

struct Case {
    const char* name;
    std::vector<Setting> settings;
    bool reduceMotion = false;
    bool increaseContrast = false;
    std::optional<bool> isDark;
};

constexpr auto kNew = "org.freedesktop.appearance";
constexpr auto kGnome = "org.gnome.desktop.interface";
constexpr auto kGnomeAccess = "org.gnome.desktop.a11y.interface";
constexpr auto kKde = "org.kde.kdeglobals.KDE";
constexpr auto kFactor = "AnimationDurationFactor";

} // namespace

TEST(DesktopSettings, AreReadFromTheNewerKeysAndElseFromTheOlderOnes)
{
    const std::vector<Case> cases {
        {"all asked for", {{kNew, "reduced-motion", 1U}, {kNew, "contrast", 1U}, {kNew, "color-scheme", 1U}}, true,
            true, true},
        {"nothing asked for", {{kNew, "reduced-motion", 0U}, {kNew, "contrast", 0U}, {kNew, "color-scheme", 0U}}, false,
            false, {}},
        {"light", {{kNew, "color-scheme", 2U}}, false, false, false},
        {"a scheme of the future", {{kNew, "color-scheme", 3U}}, false, false, {}},
        {"wrong types",
            {{kNew, "reduced-motion", true}, {kNew, "contrast", QStringLiteral("1")}, {kNew, "color-scheme", 1.0},
                {kGnome, "enable-animations", 0U}, {kGnomeAccess, "high-contrast", 1U}, {kKde, kFactor, false}},
            false, false, {}},
        {"older keys", {{kGnome, "enable-animations", false}, {kGnomeAccess, "high-contrast", true}}, true, true, {}},
        {"older keys, not asked for", {{kGnome, "enable-animations", true}, {kGnomeAccess, "high-contrast", false}},
            false, false, {}},
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
        {"factor as number", {{kKde, kFactor, 0}}, true, false, {}},
        {"no factor", {{kKde, kFactor, QStringLiteral("")}}, false, false, {}},
        {"a key of that name elsewhere", {{"org.example", "contrast", 1U}, {kGnome, "high-contrast", true}}, false,
            false, {}},
    };
    for (const auto& c : cases) {
        DesktopSettings settings;
        for (const auto& [group, key, value] : c.settings)
            settings.set(QString::fromUtf8(group), QString::fromUtf8(key), value);
        EXPECT_EQ(settings.reduceMotion(), c.reduceMotion) << c.name;
        EXPECT_EQ(settings.increaseContrast(), c.increaseContrast) << c.name;
        EXPECT_EQ(settings.isDark(), c.isDark) << c.name;
    }
}

} // namespace cuebright::test
