#pragma once

#include "foundation/Signal.h"
#include "platform/linux/base/FileDescriptor.h"

#include <QSocketNotifier>

namespace cuebright {

/// SIGTERM, SIGINT and SIGHUP as events of the main loop, where it is safe to save and quit.
///
/// A SIGHUP that was ignored from the start (nohup) stays ignored.
class TerminationSignals final {
public:
    /// Holds the three signals back until an object of this class receives them, and ignores SIGPIPE. Call it before
    /// any thread starts: threads take it over.
    ///
    /// Child processes made by fork(), as by `QProcess::startDetached` and `QDesktopServices::openUrl`, undo this by
    /// themselves. Those made otherwise call `releaseInChild` (`QProcess::setChildProcessModifier`) or are given a
    /// signal mask (`posix_spawnattr_setsigmask`).
    static void claim();

    /// Gives the process the signals' default effects again. Safe between fork and exec.
    static void releaseInChild();

    /// Needs `claim` before it and a Qt event loop.
    TerminationSignals();

    /// One of the signals has arrived.
    Signal<> requested;

private:
    void receive();

    FileDescriptor m_signals;
    QSocketNotifier m_notifier;
};

} // namespace cuebright
