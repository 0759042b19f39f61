#include "desktop/BusClient.h"
#include "desktop/RunningPanel.h"

#include <csignal>
#include <memory>
#include <ostream>

namespace cuebright::test {
namespace {

/// What a further launch shares with the first one.
struct Way {
    const char* name;
    bool sharesBus;
    bool sharesFolder;

    friend void PrintTo(const Way& way, std::ostream* out) { *out << way.name; }
};

class FurtherLaunch : public testing::TestWithParam<Way> {
protected:
    const Home home;
    const TemporaryFolder folder;

    [[nodiscard]] std::filesystem::path messages() const { return folder.path() / "messages"; }

    /// It has no display to go to: who merely hands over needs none.
    [[nodiscard]] std::unique_ptr<Process> launch() const
    {
        Environment environment {{"DISPLAY", ":65000"}};
        if (!GetParam().sharesBus)
            environment["DBUS_SESSION_BUS_ADDRESS"] = "";
        if (!GetParam().sharesFolder)
            environment["XDG_RUNTIME_DIR"] = folder.path();
        auto start = home.program(environment);
        start.output = messages();
        return std::make_unique<Process>(start);
    }
};

TEST_P(FurtherLaunch, ShowsThePanelOfTheFirstWithTheKeyboardAndEndsEvenThoughThatHangs)
{
    const RunningPanel panel(home);
    panel.press("ctrl+shift+s");
    ASSERT_TRUE(panel.isOffScreen());
    const auto other = desktop().openWindow(Desktop::Size::Small);
    EXPECT_EQ(launch()->exitStatus(), 0) << readFile(messages());
    EXPECT_TRUE(panel.isOnScreen());
    EXPECT_TRUE(waitUntil([&] { return desktop().isActive(panel.window()); }));
    EXPECT_EQ(readFile(messages()), "");
    desktop().closeWindow(other);

    panel.press("ctrl+shift+s");
    ASSERT_TRUE(panel.isOffScreen());
    panel.send(SIGSTOP);
    EXPECT_EQ(launch()->exitStatus(), 0);
    EXPECT_NE(readFile(messages()).find("does not answer"), std::string::npos) << readFile(messages());
    panel.send(SIGCONT);
    EXPECT_TRUE(panel.isOnScreen());
}

INSTANTIATE_TEST_SUITE_P(Ways, FurtherLaunch,
    testing::Values(Way {"BusAndFolder", true, true}, Way {"FolderAlone", false, true}, Way {"BusAlone", true, false}),
    [](const auto& way) { return way.param.name; });

TEST(OneInstance, AKilledProgramKeepsNobodyOut)
{
    const Home home;
    RunningPanel killed(home);
    killed.send(SIGKILL);
    ASSERT_EQ(killed.exitStatus(), 128 + SIGKILL);
    const RunningPanel next(home);
    EXPECT_TRUE(next.isOnScreen());
}

TEST(OneInstance, TwoStartedAtOnceEndAsOne)
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

class Remote : public testing::Test {
protected:
    const Home home;
    const BusClient bus {desktop().environment().at("DBUS_SESSION_BUS_ADDRESS")};
    pid_t startedByBus = 0;

    Remote() { home.keepDeck("Talk", {"# One", "# Two", "# Three"}); }

    void TearDown() override
    {
        if (startedByBus == 0)
            return;
        kill(startedByBus, SIGKILL);
        EXPECT_TRUE(waitUntil([this] { return !bus.owner(kName); }));
    }

    /// The bus knows the program as if it were installed.
    void install() const
    {
        const std::filesystem::path script = home.stateFolder().parent_path() / "start";
        std::string text = "#!/bin/sh\n";
        for (const auto& [name, value] : home.environment())
            text += "export " + name + "='" + value + "'\n";
        Home::write(script, text + "exec " CUEBRIGHT_PROGRAM "\n");
        std::filesystem::permissions(script, std::filesystem::perms::owner_all);
        const std::filesystem::path services = desktop().environment().at("XDG_RUNTIME_DIR") + "/dbus-1/services";
        Home::write(services / (std::string(kName) + ".service"),
            "[D-BUS Service]\nName=" + std::string(kName) + "\nExec=" + script.string() + "\n");
        bus.reloadServices();
    }

    static constexpr const char* kName = "app.cuebright.Cuebright";
};

TEST_F(Remote, ActionsStepAndToggleWithoutTheKeyboard)
{
    const auto other = desktop().openWindow(Desktop::Size::Small);
    const RunningPanel panel(home, {}, RunningPanel::Keyboard::Left);
    ASSERT_TRUE(panel.shows("CARD 01 / 03"));
    EXPECT_TRUE(bus.activateAction(kName, "next-card"));
    EXPECT_TRUE(panel.shows("CARD 02 / 03"));
    EXPECT_TRUE(bus.activateAction(kName, "previous-card"));
    EXPECT_TRUE(panel.shows("CARD 01 / 03"));
    EXPECT_TRUE(bus.activateAction(kName, "toggle-panel"));
    EXPECT_TRUE(panel.isOffScreen());
    EXPECT_TRUE(bus.activateAction(kName, "toggle-panel"));
    EXPECT_TRUE(panel.isOnScreen());
    EXPECT_TRUE(desktop().isActive(other));
    desktop().closeWindow(other);
}

TEST_F(Remote, NothingStepsWhileAQuestionIsOpen)
{
    const RunningPanel panel(home);
    panel.press("ctrl+d");
    ASSERT_TRUE(panel.showsButton("Delete"));
    EXPECT_TRUE(bus.activateAction(kName, "next-card"));
    panel.press("Return");
    EXPECT_TRUE(panel.shows("CARD 01 / 02"));
}

TEST_F(Remote, AToggleThatStartsTheProgramLeavesThePanelOnTheScreen)
{
    install();
    ASSERT_TRUE(bus.activateAction(kName, "toggle-panel"));
    startedByBus = bus.owner(kName).value_or(0);
    ASSERT_GT(startedByBus, 0);
    std::optional<Desktop::WindowId> window;
    ASSERT_TRUE(waitUntil([&] { return (window = desktop().windowOf(startedByBus)).has_value(); }));
    // The answer to a later call comes after everything that the first one did.
    EXPECT_TRUE(bus.activateAction(kName, "next-card"));
    EXPECT_TRUE(desktop().isOnScreen(*window));
}

} // namespace
} // namespace cuebright::test
