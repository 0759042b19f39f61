#include "support/FakePortal.h"
#include "support/OrderLine.h"

using namespace cuebright::test;

/// The portal of a test's desktop: prints "ready", then one line for each call, and obeys the lines of its input:
/// `set <namespace> <key> <unsigned number>` and `activate <shortcut>`.
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    FakePortal portal(QDBusConnection::sessionBus());
    portal.called = say;
    const OrderLine orders([&portal](const QString& line) {
        const auto words = line.split(QLatin1Char(' '));
        if (words.size() == 4 && words[0] == QLatin1String("set"))
            portal.changeSetting(words[1], words[2], words[3].toUInt());
        else if (words.size() != 2 || !portal.activate(words[1]))
            say(QStringLiteral("cannot: ") + line);
    });
    say(QStringLiteral("ready"));
    return QCoreApplication::exec();
}
