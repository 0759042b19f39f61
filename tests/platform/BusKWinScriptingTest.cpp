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
    FakeKWin& startExcluded()
    {
        kwinOnTheBus.emplace(bus.connect());
        exclusion->start();
        EXPECT_TRUE(reaches(State::Excluded));
        return *kwinOnTheBus;
    }
    bool reaches(State state)
    {
        return waitUntil([&] { return exclusion->isSettled() && exclusion->state() == state; });
    }

    PrivateBus bus;
    std::optional<FakeKWin> kwinOnTheBus;
    TemporaryFolder folder;
    FakePlatform platform;
    QDBusConnection ours = bus.connect();
    std::unique_ptr<KWinCaptureExclusion> exclusion = std::make_unique<KWinCaptureExclusion>(
        std::make_unique<BusKWinScripting>([this] { return ours; }, folder.path()), platform.mainQueue);
};

} // namespace

TEST_F(BusKWinScriptingTest, KWinGetsTheDocumentedCallsAndAFileForItsEyesOnly)
{
    auto& kwin = startExcluded();
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
    auto& kwin = startExcluded();
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
    auto& kwin = startExcluded();
    std::vector<State> states;
    const auto subscription = exclusion->changed.subscribe([&] { states.push_back(exclusion->state()); });
    for (const auto& [from, error, heard] : {std::tuple(bus.connect(), QDBusError::AccessDenied, std::vector<State> {}),
             std::tuple(kwin.connection, QDBusError::NoError, std::vector {State::Visible})}) {
        const auto call = from.asyncCall(kwin.reportOf(QStringLiteral("refused")));
        EXPECT_TRUE(waitUntil([&] { return call.isFinished(); }));
        EXPECT_EQ(call.error().type(), error);
        EXPECT_EQ(states, heard);
    }
}

TEST_F(BusKWinScriptingTest, TheScriptIsUnloadedEvenIfTheProgramEndsAtOnce)
{
    auto& kwin = startExcluded();
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
