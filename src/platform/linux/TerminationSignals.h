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
    /// Child processes made by fork(), as by `QProcess::startDetached` and `QDesktopServices::openUrl`, get the
    /// defaults back automatically. Other ways of starting one must restore them: with `releaseInChild`
    /// (`QProcess::setChildProcessModifier`) or `posix_spawnattr_setsigmask` and `posix_spawnattr_setsigdefault`.
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
