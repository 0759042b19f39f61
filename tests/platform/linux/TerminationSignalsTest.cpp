#include "platform/linux/TerminationSignals.h"

#include "support/EventLoop.h"
#include "support/TemporaryFolder.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <csignal>
#include <functional>

#include <pthread.h>

namespace cuebright::test {

namespace {

class TerminationSignalsTest : public testing::Test {
protected:
    TerminationSignalsTest() { pthread_sigmask(SIG_BLOCK, nullptr, &m_oldMask); }
    ~TerminationSignalsTest() override
    {
        // Pending signals must not end the test program.
        sigset_t blocked;
        pthread_sigmask(SIG_BLOCK, nullptr, &blocked);
        const timespec atOnce {};
        while (sigtimedwait(&blocked, nullptr, &atOnce) > 0) { }
        pthread_sigmask(SIG_SETMASK, &m_oldMask, nullptr);
        std::signal(SIGPIPE, SIG_DFL);
        std::signal(SIGHUP, SIG_DFL);
    }

    /// Whether a child process starts with no signal blocked or ignored.
    static testing::AssertionResult isBornWithTheUsualSignals(const std::function<void(QProcess&)>& start)
    {
        const TemporaryFolder folder;
        QProcess process;
        process.setProgram(QStringLiteral("/bin/grep"));
        process.setArguments(
            {QStringLiteral("-E"), QStringLiteral("^Sig(Blk|Ign)"), QStringLiteral("/proc/self/status")});
        process.setStandardOutputFile(QString::fromStdString(folder.file("report")));
        start(process);
        const bool isSo = waitUntil([&] {
            return readFile(folder.file("report")) == "SigBlk:\t0000000000000000\nSigIgn:\t0000000000000000\n";
        });
        process.waitForFinished();
        return isSo ? testing::AssertionSuccess() : testing::AssertionFailure() << readFile(folder.file("report"));
    }

private:
    sigset_t m_oldMask {};
};

} // namespace

TEST_F(TerminationSignalsTest, ASignalArrivesAsARequestInTheEventLoopAlsoOneBeforeTheReceiver)
{
    TerminationSignals::claim();
    ASSERT_EQ(std::raise(SIGTERM), 0);
    TerminationSignals signals;
    int requests = 0;
    const auto subscription = signals.requested.subscribe([&] { ++requests; });
    EXPECT_TRUE(waitUntil([&] { return requests == 1; }));
    ASSERT_EQ(std::raise(SIGTERM), 0);
    EXPECT_EQ(requests, 1) << "not before the event loop";
    EXPECT_TRUE(waitUntil([&] { return requests == 2; }));
}

TEST_F(TerminationSignalsTest, ABrokenPipeAndAHangUpIgnoredFromTheStartAreIgnored)
{
    std::signal(SIGHUP, SIG_IGN);
    TerminationSignals::claim();
    for (const int signal : {SIGHUP, SIGPIPE}) {
        ASSERT_EQ(std::raise(signal), 0);
        sigset_t pending;
        sigpending(&pending);
        EXPECT_EQ(sigismember(&pending, signal), 0);
    }
}

TEST_F(TerminationSignalsTest, ADetachedProgramIsBornWithTheUsualSignalsAndSoIsAChildThatReleasesThem)
{
    TerminationSignals::claim();
    EXPECT_TRUE(isBornWithTheUsualSignals([](QProcess& process) { ASSERT_TRUE(process.startDetached()); }));
    EXPECT_TRUE(isBornWithTheUsualSignals([](QProcess& process) {
        process.setChildProcessModifier(&TerminationSignals::releaseInChild);
        process.start();
    }));
}

} // namespace cuebright::test
