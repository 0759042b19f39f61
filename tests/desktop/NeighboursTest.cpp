#include "desktop/DesktopBus.h"
#include "support/FakeKWin.h"
#include "support/FakePortal.h"

#include <QDBusPendingCall>
#include <QThread>

namespace cuebright::test {
namespace {

/// A fake compositor or portal on the desktop's bus, in its own thread.
template <typename Fake> class Neighbour final {
public:
    explicit Neighbour(const QString& name)
        : m_name(name)
    {
        m_fake.moveToThread(&m_thread);
        m_thread.start();
    }
    Neighbour(const Neighbour&) = delete;
    Neighbour& operator=(const Neighbour&) = delete;
    ~Neighbour()
    {
        m_thread.quit();
        m_thread.wait();
        QDBusConnection::disconnectFromBus(m_name);
    }

    template <typename Work> void order(Work work)
    {
        QMetaObject::invokeMethod(
            &m_fake, [&] { work(m_fake); }, Qt::BlockingQueuedConnection);
    }
    [[nodiscard]] testing::AssertionResult wasAsked(const char* call)
    {
        QString calls;
        const auto isThere = [&] {
            order([&](const Fake& fake) { calls = fake.calls.join(QLatin1Char('\n')); });
            return calls.contains(QString::fromLatin1(call));
        };
        return waitUntil(isThere) ? testing::AssertionSuccess() : testing::AssertionFailure() << calls.toStdString();
    }

private:
    QString m_name;
    Fake m_fake {connectToDesktop(m_name)};
    QThread m_thread;
};

TEST(DesktopNeighbours, PlasmaGivesTheHotKeyByItsPortalAndHidesThePanelByKWin)
{
    Neighbour<FakeKWin> kwin(QStringLiteral("kwin"));
    Neighbour<FakePortal> portal(QStringLiteral("portal"));
    const auto pressHotKey = [](FakePortal& fake) { EXPECT_TRUE(fake.activate(QStringLiteral("toggle-panel"))); };
    const Home home;
    const RunningPanel panel(home, {{"XDG_SESSION_TYPE", "wayland"}, {"XDG_CURRENT_DESKTOP", "KDE"}});
    EXPECT_TRUE(kwin.wasAsked(" cuebright\n/Scripting/Script5 org.kde.kwin.Script.run()"));
    ASSERT_TRUE(portal.wasAsked("BindShortcuts toggle-panel CTRL+SHIFT+s"));
    kwin.order([](FakeKWin& fake) {
        fake.report = QStringLiteral("omitted"); // of the next run
        fake.connection.asyncCall(fake.reportOf(QStringLiteral("refused")));
    });
    ASSERT_TRUE(panel.shows("Visible in screen shares"));
    portal.order(pressHotKey);
    ASSERT_TRUE(panel.isOffScreen());
    portal.order(pressHotKey);
    EXPECT_TRUE(panel.isOnScreen());
    EXPECT_TRUE(panel.shows("Protection re-applied"));
    EXPECT_EQ(panel.console(), "[Cuebright] WARNING: sharingType was reset — re-applied .none\n");
}

TEST(DesktopNeighbours, TheLookFollowsTheDesktopWhileRunning)
{
    Neighbour<FakePortal> portal(QStringLiteral("portal"));
    const Home home;
    const RunningPanel panel(home);
    ASSERT_TRUE(panel.hasBrightness(200, 255));
    for (const auto& [scheme, least, most] : {std::tuple(1U, 0, 60), std::tuple(2U, 200, 255)}) {
        portal.order([wanted = scheme](FakePortal& fake) {
            fake.changeSetting(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"), wanted);
        });
        EXPECT_TRUE(panel.hasBrightness(least, most));
    }
}

TEST(DesktopNeighbours, BlurFollowsTheCompositor)
{
    const Home home;
    home.prefer("cuebrightOpacity", "0.8");
    const RunningPanel panel(home);
    const auto blursBehind = [&] { return desktop().hasProperty(panel.window(), "_KDE_NET_WM_BLUR_BEHIND_REGION"); };
    EXPECT_FALSE(blursBehind());
    {
        const auto compositor = desktop().startCompositor();
        EXPECT_TRUE(panel.reaches("glass", blursBehind));
        EXPECT_TRUE(panel.hasBrightness(150, 230)) << "the desktop shows through";
    }
    EXPECT_TRUE(panel.reaches("no glass", std::not_fn(blursBehind)));
}

} // namespace
} // namespace cuebright::test
