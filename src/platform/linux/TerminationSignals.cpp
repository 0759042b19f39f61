#include "platform/linux/TerminationSignals.h"

#include <cassert>

#include <pthread.h>
#include <signal.h>
#include <sys/signalfd.h>

namespace cuebright {

namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

sigset_t allSignals()
{
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : kSignals)
        sigaddset(&set, signal);
    return set;
}

sigset_t claimedSignals()
{
    sigset_t blocked;
    pthread_sigmask(SIG_BLOCK, nullptr, &blocked);
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : kSignals) {
        if (sigismember(&blocked, signal) == 1)
            sigaddset(&set, signal);
    }
    return set;
}

bool isIgnored(int signal)
{
    struct sigaction action { };
    return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

FileDescriptor openSignals()
{
    const auto set = claimedSignals();
    assert(sigismember(&set, SIGTERM) == 1 && "the signals are claimed before they are received");
    return FileDescriptor(::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK));
}

} // namespace

void TerminationSignals::claim()
{
    auto set = allSignals();
    if (isIgnored(SIGHUP)) // a blocked signal is delivered to signalfd even if ignored
        sigdelset(&set, SIGHUP);
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    ::signal(SIGPIPE, SIG_IGN);
    pthread_atfork(nullptr, nullptr, &TerminationSignals::releaseInChild);
}

void TerminationSignals::releaseInChild()
{
    const auto set = allSignals();
    pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
    ::signal(SIGPIPE, SIG_DFL);
}

TerminationSignals::TerminationSignals()
    : m_signals(openSignals())
    , m_notifier(m_signals.get(), QSocketNotifier::Read)
{
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] { receive(); });
}

void TerminationSignals::receive()
{
    bool any = false;
    signalfd_siginfo info {};
    while (::read(m_signals.get(), &info, sizeof info) == ssize_t {sizeof info})
        any = true;
    if (any)
        requested.notify();
}

} // namespace cuebright
