#include "support/FakePortal.h"
#include "support/OrderLine.h"

using namespace cuebright::test;

namespace {

QVariant valueOf(const QString& type, const QString& text)
{
    if (type == QLatin1String("u"))
        return text.toUInt();
    if (type == QLatin1String("i"))
        return text.toInt();
    if (type == QLatin1String("b"))
        return text == QLatin1String("true");
    if (type == QLatin1String("d"))
        return text.toDouble();
    return text;
}

void obey(FakePortal& portal, const QString& line)
{
    const auto words = line.split(QLatin1Char(' '));
    if (words[0] == QLatin1String("set") && words.size() == 5)
        portal.changeSetting(words[1], words[2], valueOf(words[3], words[4]));
    else if (words[0] == QLatin1String("activate") && words.size() == 2 && portal.activate(words[1]))
        return;
    else if (words[0] == QLatin1String("quit"))
        QCoreApplication::quit();
    else
        say(QStringLiteral("cannot: ") + line);
}

} // namespace

/// The portal of a test's desktop: prints "ready", then one line for each call, and obeys the lines of its input:
/// `set <namespace> <key> <u|i|b|s|d> <value>`, `activate <shortcut>`, `quit`.
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    FakePortal portal(QDBusConnection::sessionBus());
    portal.called = say;
    const OrderLine orders([&portal](const QString& line) { obey(portal, line); });
    say(QStringLiteral("ready"));
    return QCoreApplication::exec();
}
