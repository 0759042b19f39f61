#include "platform/linux/BusKWinScripting.h"

#include "platform/TemporaryFolder.h"
#include "platform/linux/KWinCaptureExclusion.h"
#include "platform/linux/KWinScript.h"
#include "support/EventLoop.h"
#include "support/FakeKWin.h"
#include "support/FakePlatform.h"
#include "support/PrivateBus.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCall>

#include <gtest/gtest.h>

#include <unistd.h>

namespace cuebright::test {

namespace {

using State = CaptureExclusion::State;

class BusKWinScriptingTest : public testing::Test {
protected:
    bool reaches(State state)
    {
        return waitUntil([&] { return exclusion->isSettled() && exclusion->state() == state; });
    }

    PrivateBus bus;
    TemporaryFolder folder;
    FakePlatform platform;
    QDBusConnection ours = bus.connect();
    std::unique_ptr<KWinCaptureExclusion> exclusion = std::make_unique<KWinCaptureExclusion>(
        std::make_unique<BusKWinScripting>([this] { return ours; }, folder.path()), platform.mainQueue);
};

} // namespace

TEST_F(BusKWinScriptingTest, KWinGetsTheDocumentedCallsAndAFileForItsEyesOnly)
{
    FakeKWin kwin(bus.connect());
    exclusion->start();
    EXPECT_TRUE(reaches(State::Excluded));
    const auto file = folder.path() / "cuebright/capture-exclusion.js";
    EXPECT_EQ(kwin.calls,
        (QStringList {QStringLiteral("/Scripting org.kde.kwin.Scripting.unloadScript(s) cuebright"),
            QStringLiteral("/Scripting org.kde.kwin.Scripting.loadScript(ss) %1 cuebright")
                .arg(QString::fromStdString(file)),
            QStringLiteral("/Scripting/Script5 org.kde.kwin.Script.run()")}));
    EXPECT_EQ(kwin.script, kwinScript(::getpid(), ours.baseService().toStdString()));
    EXPECT_EQ(kwin.modes, (std::vector<unsigned> {0600, 0700}));
    EXPECT_TRUE(waitUntil([&] { return !std::filesystem::exists(file); }));
}

TEST_F(BusKWinScriptingTest, ARestartedKWinIsLoadedAnew)
{
    FakeKWin kwin(bus.connect());
    exclusion->start();
    EXPECT_TRUE(reaches(State::Excluded));
    kwin.vanish();
    EXPECT_TRUE(reaches(State::Unknown));
    kwin.report = QStringLiteral("refused");
    kwin.appear();
    EXPECT_TRUE(reaches(State::Visible));
    EXPECT_EQ(kwin.calls.size(), 6);
}

TEST_F(BusKWinScriptingTest, WithoutKWinOrABusTheAnswerIsUnknown)
{
    exclusion->start();
    EXPECT_TRUE(reaches(State::Unknown));

    exclusion = std::make_unique<KWinCaptureExclusion>(
        std::make_unique<BusKWinScripting>([] { return QDBusConnection(QStringLiteral("none")); }, folder.path()),
        platform.mainQueue);
    exclusion->start();
    EXPECT_TRUE(exclusion->isSettled());
    EXPECT_EQ(exclusion->state(), State::Unknown);
}

TEST_F(BusKWinScriptingTest, AReportFromAnyoneElseDoesNotCount)
{
    FakeKWin kwin(bus.connect());
    exclusion->start();
    EXPECT_TRUE(reaches(State::Excluded));
    std::vector<State> states;
    const auto subscription = exclusion->changed.subscribe([&] { states.push_back(exclusion->state()); });
    const auto report = kwin.reportOf(QStringLiteral("refused"));
    const auto foreign = bus.connect().asyncCall(report);
    EXPECT_TRUE(waitUntil([&] { return foreign.isFinished(); }));
    EXPECT_EQ(foreign.error().type(), QDBusError::AccessDenied);
    EXPECT_TRUE(states.empty());
    const auto own = kwin.connection.asyncCall(report);
    EXPECT_TRUE(waitUntil([&] { return own.isFinished(); }));
    EXPECT_TRUE(own.isValid());
    EXPECT_EQ(states, std::vector<State> {State::Visible});
}

TEST_F(BusKWinScriptingTest, TheScriptIsUnloadedEvenIfTheProgramEndsAtOnce)
{
    FakeKWin kwin(bus.connect());
    exclusion->start();
    EXPECT_TRUE(reaches(State::Excluded));
    kwin.calls.clear();
    exclusion.reset();
    QDBusConnection::disconnectFromBus(ours.name());
    ours = QDBusConnection(QString());
    EXPECT_TRUE(waitUntil([&] {
        return kwin.calls
            == QStringList {QStringLiteral("/Scripting org.kde.kwin.Scripting.unloadScript(s) cuebright")};
    }));
}

} // namespace cuebright::test
