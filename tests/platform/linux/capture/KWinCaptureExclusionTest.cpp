#include "platform/linux/capture/KWinCaptureExclusion.h"

#include "platform/linux/capture/KWinScript.h"
#include "support/EventLoop.h"
#include "support/FakeKWin.h"
#include "support/FakePlatform.h"
#include "support/PrivateBus.h"
#include "support/TemporaryFolder.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCall>

#include <gtest/gtest.h>

#include <unistd.h>

namespace cuebright::test {

namespace {

using enum CaptureExclusion::State;
using State = CaptureExclusion::State;

const QString kUnload = QStringLiteral("/Scripting org.kde.kwin.Scripting.unloadScript(s) cuebright");
const QString kRun = QStringLiteral("/Scripting/Script5 org.kde.kwin.Script.run()");

class KWinCaptureExclusionTest : public testing::Test {
protected:
    FakeKWin& startWith(const char* report)
    {
        kwin.emplace(bus.connect());
        kwin->report = QString::fromLatin1(report);
        exclusion->start();
        EXPECT_TRUE(waitUntil([&] { return !told.empty(); }));
        return *kwin;
    }
    std::unique_ptr<KWinCaptureExclusion> makeExclusion(const QDBusConnection& connection)
    {
        return std::make_unique<KWinCaptureExclusion>(
            [connection] { return connection; }, folder.path(), platform.mainQueue);
    }
    void restartKWin()
    {
        kwin->vanish();
        EXPECT_TRUE(waitUntil([&] { return exclusion->state() == Unknown && exclusion->isSettled(); }));
        kwin->calls.clear();
        told.clear();
        kwin->appear();
    }
    /// Sends a report as KWin's script does; returns the error reply, if any.
    QDBusError::ErrorType report(const char* word, const std::optional<QDBusConnection>& from = {})
    {
        const auto call = from.value_or(kwin->connection).asyncCall(kwin->reportOf(QString::fromLatin1(word)));
        EXPECT_TRUE(waitUntil([&] { return call.isFinished(); }));
        return call.error().type();
    }
    [[nodiscard]] bool hasCalls(int count) const
    {
        return waitUntil([&] { return kwin->calls.size() == count; });
    }
    [[nodiscard]] QString load() const
    {
        return QStringLiteral("/Scripting org.kde.kwin.Scripting.loadScript(ss) %1 cuebright")
            .arg(QString::fromStdString(file));
    }

    using Told = std::vector<std::pair<State, bool>>;
    PrivateBus bus;
    std::optional<FakeKWin> kwin;
    TemporaryFolder folder;
    const std::filesystem::path file = folder.path() / "cuebright/capture-exclusion.js";
    FakePlatform platform;
    QDBusConnection ours = bus.connect();
    std::unique_ptr<KWinCaptureExclusion> exclusion = makeExclusion(ours);
    Told told; ///< each state, and whether it is settled
    Subscription subscription =
        exclusion->changed.subscribe([this] { told.emplace_back(exclusion->state(), exclusion->isSettled()); });
};

} // namespace

TEST_F(KWinCaptureExclusionTest, LoadsTheScriptAndBelievesWhatKWinReports)
{
    EXPECT_EQ(std::pair(exclusion->state(), exclusion->isSettled()), std::pair(Unknown, false));
    startWith("omitted");
    EXPECT_EQ(kwin->calls, (QStringList {kUnload, load(), kRun}));
    EXPECT_EQ(kwin->script, kwinScript(::getpid(), ours.baseService().toStdString()));
    EXPECT_EQ(kwin->modes, (std::vector<unsigned> {0600, 0700}));
    EXPECT_TRUE(waitUntil([&] { return !std::filesystem::exists(file); }));
    for (const auto* const word : {"omitted", "refused", "omitted", "unsupported", "bananas"}) {
        platform.mainQueue.advance(Seconds(10));
        EXPECT_EQ(report(word), QDBusError::NoError);
    }
    EXPECT_EQ(told, (Told {{Excluded, true}, {Visible, true}, {Excluded, true}, {Visible, true}, {Unknown, true}}));
    EXPECT_EQ(report("omitted", bus.connect()), QDBusError::AccessDenied);
    EXPECT_EQ(exclusion->state(), Unknown) << "after a report from anyone else";
    kwin->calls.clear();
    exclusion.reset();
    QDBusConnection::disconnectFromBus(ours.name()); // as at the end of the program
    ours = QDBusConnection(QString());
    EXPECT_TRUE(waitUntil([&] { return kwin->calls == QStringList {kUnload}; }));
}

TEST_F(KWinCaptureExclusionTest, WithoutKWinItIsUnknown)
{
    exclusion->start();
    EXPECT_TRUE(waitUntil([&] { return told == Told {{Unknown, true}}; }));
}

TEST_F(KWinCaptureExclusionTest, EveryFailureOnTheWayIsSettledAsUnknown)
{
    const std::tuple<const char*, int, const char*> cases[] = {
        {"unloadScript", 5, "omitted"}, {"loadScript", 5, "omitted"}, {"nothing", -1, "omitted"}, {"run", 0, ""}};
    startWith("omitted");
    for (const auto& [refused, number, word] : cases) {
        kwin->refused = QString::fromLatin1(refused);
        kwin->scriptNumber = number;
        kwin->report = QString::fromLatin1(word);
        restartKWin();
        EXPECT_TRUE(waitUntil([&] { return told == Told {{Unknown, false}, {Unknown, true}}; })) << refused;
    }
    kwin->refused.clear();
    restartKWin();
    EXPECT_TRUE(hasCalls(3));
    EXPECT_EQ(told, (Told {{Unknown, false}}));
    platform.mainQueue.advance(Seconds(3)); // no report
    report("omitted"); // the first window came late
    EXPECT_EQ(told, (Told {{Unknown, false}, {Unknown, true}, {Excluded, true}}));
}

TEST_F(KWinCaptureExclusionTest, ARestartedKWinIsAskedAnewAndBelievedOnlyThen)
{
    startWith("omitted");
    bool isAsked = false;
    kwin->called = [&](const QString&) {
        if (std::exchange(isAsked, true))
            return;
        kwin->connection.asyncCall(kwin->reportOf(QStringLiteral("omitted"))); // by an earlier copy of the script
        kwin->vanish(); // once more, before it has answered
        kwin->appear();
    };
    restartKWin();
    EXPECT_TRUE(waitUntil([&] { return told.size() == 4; }));
    EXPECT_EQ(told, (Told {{Unknown, false}, {Unknown, true}, {Unknown, false}, {Excluded, true}}));
    EXPECT_EQ(kwin->calls, (QStringList {kUnload, kUnload, load(), kRun}));
}

TEST_F(KWinCaptureExclusionTest, OnlyALostExclusionIsReappliedAndConfirmedOnce)
{
    int reapplied = 0;
    const auto reappliedSubscription = exclusion->reapplied.subscribe([&] { ++reapplied; });
    const auto reapply = [&] { exclusion->reapplyIfLost(); };
    startWith("refused");
    kwin->calls.clear();
    reapply(); // was never excluded
    report("omitted");
    reapply(); // is excluded
    report("refused");
    EXPECT_TRUE(kwin->calls.isEmpty());
    reapply();
    reapply(); // shown again before the answer
    EXPECT_TRUE(hasCalls(3));
    report("refused");
    EXPECT_EQ(reapplied, 0);
    report("omitted");
    report("omitted");
    EXPECT_EQ(reapplied, 1);
    EXPECT_EQ(kwin->calls.size(), 3);
}

} // namespace cuebright::test
