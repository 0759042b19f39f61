#include "platform/linux/TerminationSignals.h"

#include "platform/TemporaryFolder.h"
#include "support/EventLoop.h"

#include <QProcess>
#include <QStringList>

#include <gtest/gtest.h>

#include <csignal>

#include <pthread.h>

namespace cuebright::test {

namespace {

class TerminationSignalsTest : public testing::Test {
protected:
    TerminationSignalsTest() { pthread_sigmask(SIG_BLOCK, nullptr, &m_oldMask); }
    ~TerminationSignalsTest() override
    {
        // What is still pending must not end the test program.
        sigset_t blocked;
        pthread_sigmask(SIG_BLOCK, nullptr, &blocked);
        const timespec atOnce {};
        while (sigtimedwait(&blocked, nullptr, &atOnce) > 0) { }
        pthread_sigmask(SIG_SETMASK, &m_oldMask, nullptr);
        std::signal(SIGPIPE, SIG_DFL);
        std::signal(SIGHUP, SIG_DFL);
    }

    static bool isPending(int signal)
    {
        sigset_t pending;
        sigpending(&pending);
        return sigismember(&pending, signal) == 1;
    }

    /// Makes it a program that prints which signals it was born to block and to ignore.
    static void prepareReport(QProcess& process)
    {
        process.setProgram(QStringLiteral("/bin/grep"));
        process.setArguments(
            {QStringLiteral("-E"), QStringLiteral("^Sig(Blk|Ign)"), QStringLiteral("/proc/self/status")});
    }

    static constexpr auto kUntouched = "SigBlk:\t0000000000000000\nSigIgn:\t0000000000000000\n";

private:
    sigset_t m_oldMask {};
};

} // namespace

TEST_F(TerminationSignalsTest, EachSignalArrivesAsARequestInTheEventLoopAlsoOneBeforeTheReceiver)
{
    TerminationSignals::claim();
    ASSERT_EQ(std::raise(SIGTERM), 0);
    TerminationSignals signals;
    int requests = 0;
    const auto subscription = signals.requested.subscribe([&] { ++requests; });
    EXPECT_TRUE(waitUntil([&] { return requests == 1; }));
    int expected = 1;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        ASSERT_EQ(std::raise(signal), 0);
        EXPECT_EQ(requests, expected) << "not before the event loop";
        ++expected;
        EXPECT_TRUE(waitUntil([&] { return requests == expected; })) << signal;
    }
}

TEST_F(TerminationSignalsTest, ABrokenPipeAndAHangUpIgnoredFromTheStartAreIgnored)
{
    std::signal(SIGHUP, SIG_IGN);
    TerminationSignals::claim();
    for (const int signal : {SIGHUP, SIGPIPE}) {
        ASSERT_EQ(std::raise(signal), 0);
        EXPECT_FALSE(isPending(signal));
    }
}

TEST_F(TerminationSignalsTest, ADetachedProgramIsBornWithTheUsualSignalsAndSoIsAChildThatReleasesThem)
{
    TerminationSignals::claim();
    const TemporaryFolder folder;
    const auto report = folder.file("report");
    QProcess detached;
    prepareReport(detached);
    detached.setStandardOutputFile(QString::fromStdString(report.string()));
    ASSERT_TRUE(detached.startDetached());
    EXPECT_TRUE(waitUntil([&] { return TemporaryFolder::contentOf(report) == kUntouched; }))
        << TemporaryFolder::contentOf(report);

    QProcess child;
    prepareReport(child);
    child.setChildProcessModifier(&TerminationSignals::releaseInChild);
    child.start();
    ASSERT_TRUE(child.waitForFinished(10'000));
    EXPECT_EQ(child.readAllStandardOutput().toStdString(), kUntouched);
}

} // namespace cuebright::test
