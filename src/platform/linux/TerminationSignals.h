#pragma once

#include "foundation/Signal.h"
#include "platform/linux/base/FileDescriptor.h"

#include <QSocketNotifier>

namespace cuebright {

/// SIGTERM, SIGINT and SIGHUP as events of the main event loop, where it is safe to save and quit.
///
/// A SIGHUP that was ignored from the start (nohup) stays ignored.
class TerminationSignals final {
public:
    /// Blocks the three signals until an object of this class receives them, and ignores SIGPIPE. Call it before any
    /// thread starts, because threads inherit the signal mask.
    ///
    /// Undone in child processes made by fork(), as by `QProcess::startDetached` and `QDesktopServices::openUrl`.
    /// Others must call `releaseInChild` (`QProcess::setChildProcessModifier`) or set a signal mask
    /// (`posix_spawnattr_setsigmask`).
    static void claim();

    /// Restores the signals' default effects. Safe between fork and exec.
    static void releaseInChild();

    /// Call `claim` before. Needs a Qt event loop.
    TerminationSignals();

    Signal<> requested;

private:
    void receive();

    FileDescriptor m_signals;
    QSocketNotifier m_notifier;
};

} // namespace cuebright
