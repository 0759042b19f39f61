#include "platform/macos/TerminationSignals.h"

#include <csignal>
#include <cstddef>

#include <signal.h>

namespace cuebright {

namespace {

constexpr std::array kSignals {SIGTERM, SIGINT, SIGHUP};

bool isIgnored(int signal)
{
    struct sigaction action { };
    return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

void notifyRequested(void* signals) { static_cast<TerminationSignals*>(signals)->requested.notify(); }

dispatch_source_t watch(int signal, TerminationSignals* signals)
{
    // The source receives the signal in addition to the handler. A handler, because child processes would inherit
    // SIG_IGN.
    ::signal(signal, [](int) {});
    const auto number = static_cast<uintptr_t>(signal);
    const auto source = dispatch_source_create(DISPATCH_SOURCE_TYPE_SIGNAL, number, 0, dispatch_get_main_queue());
    if (!source) {
        ::signal(signal, SIG_DFL);
        return nullptr;
    }
    dispatch_set_context(source, signals);
    dispatch_source_set_event_handler_f(source, notifyRequested);
    dispatch_resume(source);
    return source;
}

} // namespace

TerminationSignals::TerminationSignals()
{
    ::signal(SIGPIPE, SIG_IGN);
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        if (kSignals[i] != SIGHUP || !isIgnored(SIGHUP))
            m_sources[i] = watch(kSignals[i], this);
    }
}

TerminationSignals::~TerminationSignals()
{
    for (const auto source : m_sources) {
        if (!source)
            continue;
        dispatch_source_cancel(source);
        dispatch_release(source);
    }
    for (const int signal : kSignals) {
        if (!isIgnored(signal))
            ::signal(signal, SIG_DFL);
    }
}

} // namespace cuebright
