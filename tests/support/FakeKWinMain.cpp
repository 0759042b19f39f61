#include "support/FakeKWin.h"
#include "support/OrderLine.h"

#include <QDBusPendingCall>

using namespace cuebright::test;

/// The compositor of a test's desktop: prints "ready", then one line for each call. A line of its input is what it
/// reports from now on: `omitted`, `refused` or `unsupported`; "now" before it reports it at once.
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    FakeKWin kwin(QDBusConnection::sessionBus());
    kwin.called = say;
    const OrderLine orders([&kwin](const QString& line) {
        const auto words = line.split(QLatin1Char(' '));
        kwin.report = words.last();
        if (words.size() > 1)
            kwin.connection.asyncCall(kwin.reportOf(kwin.report));
        say(QStringLiteral("will report ") + kwin.report);
    });
    say(QStringLiteral("ready"));
    return QCoreApplication::exec();
}
