#pragma once

#include "foundation/Signal.h"

#include <dispatch/dispatch.h>

#include <array>

namespace cuebright {

/// SIGTERM, SIGINT and SIGHUP on the main queue, which the application's event loop runs. Not compiled or run on a Mac
/// yet.
///
/// Make it first of all: from then on they end the process no more. A SIGHUP that was ignored from the start (nohup)
/// stays ignored, and so does SIGPIPE.
class TerminationSignals final {
public:
    TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;
    ~TerminationSignals();

    /// One of the signals has arrived.
    Signal<> requested;

private:
    static constexpr int kCount = 3;

    std::array<dispatch_source_t, kCount> m_sources {};
};

} // namespace cuebright
