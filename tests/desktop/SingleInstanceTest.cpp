#include "desktop/DesktopBus.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>

#include <csignal>
#include <filesystem>

namespace cuebright::test {
namespace {

/// Returns what a further launch prints.
std::string launchAgain(const Home& home, const Environment& environment)
{
    const TemporaryFolder folder;
    auto start = home.program(environment);
    start.output = folder.file("messages");
    EXPECT_EQ(Process(start).exitStatus(), 0);
    return readFile(start.output);
}

TEST(SingleInstance, AFurtherLaunchFocusesThePanelAndEndsEvenIfTheFirstHangs)
{
    const Environment nothingElse {{"DISPLAY", ":65000"}, {"DBUS_SESSION_BUS_ADDRESS", ""}};
    const Home home;
    const RunningPanel panel(home);
    panel.press("ctrl+shift+s");
    ASSERT_TRUE(panel.isOffScreen());
    const OtherWindow other;
    EXPECT_EQ(launchAgain(home, nothingElse), "");
    EXPECT_TRUE(panel.isOnScreen());
    EXPECT_TRUE(panel.isActive());

    panel.press("ctrl+shift+s");
    ASSERT_TRUE(panel.isOffScreen());
    panel.send(SIGSTOP);
    EXPECT_EQ(launchAgain(home, nothingElse),
        "Cuebright is running already but does not answer; it shows its panel when it does.\n");
    panel.send(SIGCONT);
    EXPECT_TRUE(panel.isOnScreen());
}

TEST(SingleInstance, AFurtherLaunchThatSharesOnlyTheBusFocusesThePanel)
{
    const Home home;
    const TemporaryFolder folder;
    const RunningPanel panel(home);
    panel.press("ctrl+shift+s");
    ASSERT_TRUE(panel.isOffScreen());
    const OtherWindow other;
    EXPECT_EQ(launchAgain(home, {{"XDG_RUNTIME_DIR", folder.path()}}), "");
    EXPECT_TRUE(panel.isOnScreen());
    EXPECT_TRUE(panel.isActive());

    panel.press("ctrl+shift+s");
    ASSERT_TRUE(panel.isOffScreen());
    ASSERT_TRUE(std::filesystem::remove(desktop().environment().at("XDG_RUNTIME_DIR") + "/cuebright/instance"));
    EXPECT_EQ(launchAgain(home, {}), "") << "the lock is held, its socket is gone";
    EXPECT_TRUE(panel.isOnScreen());
}

TEST(SingleInstance, NoBusIsStartedWhereThereIsNone)
{
    const Home home;
    const TemporaryFolder folder;
    const auto launcher = folder.write("dbus-launch", "#!/bin/sh\n: >\"$0.was-run\"\n");
    std::filesystem::permissions(launcher, std::filesystem::perms::owner_all);
    const Process program(home.program({{"DBUS_SESSION_BUS_ADDRESS", ""}, {"PATH", folder.path()}}));
    EXPECT_TRUE(waitUntil([&] { return desktop().windowOf(program.pid()).has_value(); }));
    EXPECT_FALSE(std::filesystem::exists(launcher.string() + ".was-run"));
}

TEST(SingleInstance, TwoStartedAtOnceEndAsOne)
{
    const Home home;
    Process one(home.program());
    Process other(home.program());
    ASSERT_TRUE(waitUntil([&] { return one.hasEnded() || other.hasEnded(); }));
    auto& ended = one.hasEnded() ? one : other;
    const auto& running = one.hasEnded() ? other : one;
    EXPECT_EQ(ended.exitStatus(), 0) << ended.output();
    EXPECT_TRUE(waitUntil([&] { return desktop().windowOf(running.pid()).has_value(); }));
}

const QString kName = QStringLiteral("app.cuebright.Cuebright");
const QString kBus = QStringLiteral("org.freedesktop.DBus");

/// Somebody else on the message bus, who asks the program for its actions.
class Remote : public testing::Test {
protected:
    const Home home;
    const QDBusConnection bus = connectToDesktop(QStringLiteral("remote"));
    pid_t startedByBus = 0;

    Remote() { home.keepDeck("Talk", {"# One", "# Two", "# Three"}); }

    ~Remote() override
    {
        if (startedByBus != 0)
            kill(startedByBus, SIGKILL);
        EXPECT_TRUE(waitUntil([this] { return startedByBus == 0 || owner() == 0; }));
        QDBusConnection::disconnectFromBus(bus.name());
    }

    /// Starts the program where it does not run. True once it has answered.
    [[nodiscard]] bool activate(const char* action) const
    {
        auto call = QDBusMessage::createMethodCall(kName, QStringLiteral("/app/cuebright/Cuebright"),
            QStringLiteral("org.freedesktop.Application"), QStringLiteral("ActivateAction"));
        call << QString::fromLatin1(action) << QVariantList() << QVariantMap();
        return bus.call(call).type() == QDBusMessage::ReplyMessage;
    }
    /// The process that has the program's name; 0 where none has it.
    [[nodiscard]] pid_t owner() const { return static_cast<pid_t>(bus.interface()->servicePid(kName).value()); }

    /// The bus knows the program as if it were installed.
    void install() const
    {
        const auto script = home.stateFolder().parent_path() / "start";
        std::string text = "#!/bin/sh\n";
        for (const auto& [name, value] : home.environment())
            text += "export " + name + "='" + value + "'\n";
        Home::write(script, text + "exec " CUEBRIGHT_PROGRAM "\n");
        std::filesystem::permissions(script, std::filesystem::perms::owner_all);
        Home::write(desktop().environment().at("XDG_RUNTIME_DIR") + "/dbus-1/services/app.cuebright.Cuebright.service",
            "[D-BUS Service]\nName=app.cuebright.Cuebright\nExec=" + script.string() + "\n");
        bus.call(QDBusMessage::createMethodCall(
            kBus, QStringLiteral("/org/freedesktop/DBus"), kBus, QStringLiteral("ReloadConfig")));
    }
};

TEST_F(Remote, ActionsStepAndToggleWithoutFocus)
{
    const OtherWindow other;
    const RunningPanel panel(home, {}, RunningPanel::Keyboard::Left);
    ASSERT_TRUE(panel.shows("CARD 01 / 03"));
    EXPECT_TRUE(activate("next-card"));
    EXPECT_TRUE(panel.shows("CARD 02 / 03"));
    EXPECT_TRUE(activate("previous-card"));
    EXPECT_TRUE(panel.shows("CARD 01 / 03"));
    EXPECT_TRUE(activate("toggle-panel"));
    EXPECT_TRUE(panel.isOffScreen());
    EXPECT_TRUE(activate("toggle-panel"));
    EXPECT_TRUE(panel.isOnScreen());
    EXPECT_TRUE(other.hasFocus());
}

TEST_F(Remote, NothingStepsWhileAQuestionIsOpen)
{
    const RunningPanel panel(home);
    panel.press("ctrl+d");
    ASSERT_TRUE(panel.showsButton("Delete"));
    ASSERT_TRUE(panel.reaches("the question's keyboard", [&] { return !desktop().isActive(panel.window()); }));
    EXPECT_TRUE(activate("next-card"));
    panel.press("Return");
    EXPECT_TRUE(panel.shows("CARD 01 / 02"));
}

TEST_F(Remote, AToggleThatStartsTheProgramLeavesThePanelOnTheScreen)
{
    install();
    ASSERT_TRUE(activate("toggle-panel"));
    startedByBus = owner();
    ASSERT_GT(startedByBus, 0);
    ASSERT_TRUE(waitUntil([&] { return desktop().windowOf(startedByBus).has_value(); }));
    // The answer to a later call comes after everything that the first one did.
    EXPECT_TRUE(activate("next-card"));
    EXPECT_TRUE(desktop().isOnScreen(*desktop().windowOf(startedByBus)));
}

} // namespace
} // namespace cuebright::test
