#pragma once

#include "foundation/Signal.h"

#include <dispatch/dispatch.h>

#include <array>

namespace cuebright {

/// SIGTERM, SIGINT and SIGHUP as events of the main queue. Not compiled or run on a Mac yet.
///
/// Make it first: from then on the signals no longer end the process. A SIGHUP that was ignored from the start (nohup)
/// stays ignored. SIGPIPE is ignored too.
class TerminationSignals final {
public:
    TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;
    ~TerminationSignals();

    Signal<> requested;

private:
    static constexpr int kCount = 3;

    std::array<dispatch_source_t, kCount> m_sources {};
};

} // namespace cuebright
