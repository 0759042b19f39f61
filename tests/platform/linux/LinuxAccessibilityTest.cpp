#include "platform/linux/LinuxAccessibility.h"

#include "support/EventLoop.h"
#include "support/FakePlatform.h"
#include "support/FakePortal.h"
#include "support/PrivateBus.h"

#include <QDBusVariant>

#include <gtest/gtest.h>

#include <optional>

namespace cuebright::test {

namespace {

const QString kGroup = QStringLiteral("org.freedesktop.appearance");
const QString kMotion = QStringLiteral("reduced-motion");
const QString kContrast = QStringLiteral("contrast");
const QString kScheme = QStringLiteral("color-scheme");

class LinuxAccessibilityTest : public testing::Test {
protected:
    FakePortal& startPortal(const QVariantMap& settings = {})
    {
        portal.emplace(bus.connect());
        portal->settings.insert(kGroup, settings);
        return *portal;
    }
    void start() { accessibility.start(bus.connect()); }
    void startAndSettle()
    {
        start();
        ASSERT_TRUE(waitUntil([&] { return queue.pendingCount() == 0; }));
    }

    void expect(bool reduceMotion, bool increaseContrast, int changed)
    {
        EXPECT_EQ(std::tuple(accessibility.reduceMotion(), accessibility.increaseContrast(), changes),
            std::tuple(reduceMotion, increaseContrast, changed));
    }

    using Reports = std::vector<std::optional<bool>>;
    PrivateBus bus;
    FakeClock clock;
    FakeMainQueue queue {clock};
    std::optional<FakePortal> portal;
    bool hasCompositor = true;
    Reports reportedDark;
    LinuxAccessibility accessibility {queue, [this] { return hasCompositor; },
        [this](std::optional<bool> isDark) { reportedDark.push_back(isDark); }};
    int changes = 0;
    Subscription onChange = accessibility.changed.subscribe([this] { ++changes; });
};

} // namespace

TEST_F(LinuxAccessibilityTest, NothingMovesUntilThePortalHasAnsweredInHoweverManyVariants)
{
    const auto wrapped = QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant(1U))));
    startPortal({{kMotion, 0U}, {kContrast, wrapped}, {kScheme, wrapped}});
    expect(true, false, 0);
    startAndSettle();
    expect(false, true, 1);
    EXPECT_EQ(reportedDark, Reports {true});
    EXPECT_EQ(portal->calls,
        QStringList {QStringLiteral("ReadAll org.freedesktop.appearance org.gnome.desktop.interface "
                                    "org.gnome.desktop.a11y.interface org.kde.kdeglobals.KDE")});
}

TEST_F(LinuxAccessibilityTest, LiveChangesArriveAndOthersChangeNothing)
{
    startPortal();
    startAndSettle();
    for (const auto scheme : {1U, 2U, 0U})
        portal->changeSetting(kGroup, kScheme, scheme);
    portal->changeSetting(kGroup, QStringLiteral("accent-color"), QStringLiteral("red"));
    portal->changeSetting(kGroup, kContrast, QVariant::fromValue(QDBusVariant(1U)));
    ASSERT_TRUE(waitUntil([&] { return accessibility.increaseContrast(); }));
    EXPECT_EQ(reportedDark, (Reports {true, false, std::nullopt}));
    expect(false, true, 2);
    portal->changeSetting(kGroup, kMotion, 1U);
    EXPECT_TRUE(waitUntil([&] { return accessibility.reduceMotion(); }));
    expect(true, true, 3);
}

TEST_F(LinuxAccessibilityTest, ASilentPortalIsWaitedForThreeSeconds)
{
    startPortal().isSilent = true;
    start();
    ASSERT_TRUE(waitUntil([&] { return !portal->calls.isEmpty(); }));
    queue.advance(Seconds(2.9));
    expect(true, false, 0);
    queue.advance(Seconds(0.2));
    expect(false, false, 1);
}

TEST_F(LinuxAccessibilityTest, APortalThatAppearsLateIsAskedAndSoIsTheOneAfterIt)
{
    startAndSettle();
    expect(false, false, 1);
    startPortal({{kMotion, 1U}});
    ASSERT_TRUE(waitUntil([&] { return accessibility.reduceMotion(); }));
    portal->leave();
    startPortal({{kContrast, 1U}});
    ASSERT_TRUE(waitUntil([&] { return accessibility.increaseContrast(); }));
    expect(false, true, 3);
}

TEST_F(LinuxAccessibilityTest, TransparencyFollowsTheCompositorFromTheBeginning)
{
    EXPECT_FALSE(accessibility.reduceTransparency());
    hasCompositor = false;
    for (int i = 0; i < 2; ++i)
        accessibility.updateCompositor();
    EXPECT_TRUE(accessibility.reduceTransparency());
    expect(true, false, 1);
}

} // namespace cuebright::test
