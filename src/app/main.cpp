#include "app/AppDelegate.h"
#include "platform/linux/FontWarmUp.h"
#include "platform/linux/TerminationSignals.h"
#include "platform/none/NoCaptureExclusion.h"
#include "platform/qt/QtPlatform.h"

#include <QApplication>

using namespace cuebright;

int main(int, char* argv[])
{
    TerminationSignals::claim();
    const FontWarmUp fontWarmUp;

    // Only the name: there are no command-line options, so Qt gets none either.
    int argumentCount = 1;
    QApplication application(argumentCount, argv);
    QApplication::setApplicationName(QStringLiteral("Cuebright"));
    QApplication::setApplicationVersion(QStringLiteral(CUEBRIGHT_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("app.cuebright.Cuebright"));

    QtPlatform platform;
    NoCaptureExclusion captureExclusion;
    AppDelegate delegate(platform.services(), captureExclusion);
    delegate.applicationDidFinishLaunching();

    TerminationSignals signals;
    const auto onSignal = signals.requested.subscribe([&] { delegate.quit(); });
    QObject::connect(&application, &QGuiApplication::lastWindowClosed, &application, [&] { delegate.quit(); });
    // The session ends: the desktop may kill the program as soon as this returns.
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &application, [&] { delegate.applicationWillTerminate(); },
        Qt::DirectConnection);
    return QApplication::exec();
}
