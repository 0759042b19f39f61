#include "support/FakePortal.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cstdio>

#include <unistd.h>

using namespace cuebright::test;

namespace {

void say(const QString& line)
{
    std::puts(qPrintable(line));
    std::fflush(stdout);
}

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
    QByteArray input;
    const QSocketNotifier notifier(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &application, [&] {
        char buffer[1024];
        const auto size = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (size <= 0)
            QCoreApplication::quit();
        else
            input.append(buffer, size);
        for (auto end = input.indexOf('\n'); end >= 0; end = input.indexOf('\n')) {
            obey(portal, QString::fromUtf8(input.left(end)));
            input.remove(0, end + 1);
        }
    });
    say(QStringLiteral("ready"));
    return QCoreApplication::exec();
}
