#include "app/AppDelegate.h"
#include "app/ExitSave.h"
#include "app/FirstFrame.h"
#include "app/QuitEvents.h"
#include "platform/qt/OneInstance.h"
#include "platform/qt/ProcessSetup.h"
#include "platform/qt/QtPlatform.h"

#include <QApplication>

using namespace cuebright;

int main(int, char* argv[])
{
    OneInstance instance;
    if (const auto status = instance.exitStatus())
        return *status;
    ProcessSetup process;

    // Only the name: there are no command-line options, so Qt gets none either.
    int argumentCount = 1;
    QApplication application(argumentCount, argv);
    QApplication::setApplicationName(QStringLiteral("Cuebright"));
    QApplication::setApplicationVersion(QStringLiteral(CUEBRIGHT_VERSION));
    QApplication::setQuitOnLastWindowClosed(false); // a hidden panel comes back
    QApplication::setDesktopFileName(QStringLiteral("app.cuebright.Cuebright"));
    process.applicationIsThere();

    QtPlatform platform;
    AppDelegate delegate(platform.services(), platform.desktop());
    const ExitSave exitSave([&] { delegate.saveEverything(); });
    delegate.applicationDidFinishLaunching();
    instance.deliver([&](const RemoteRequest& request) { delegate.perform(request); });
    const FirstFrame firstFrame(*delegate.panelWindow(), [&] {
        platform.start();
        delegate.firstFrameIsThere();
    });

    const QuitEvents quitEvents([&] { delegate.quit(); });
    const auto onRequest = process.terminationRequested.subscribe([&] { delegate.quit(); });
    QObject::connect(
        &application, &QCoreApplication::aboutToQuit, &application, [&] { delegate.applicationWillTerminate(); });
    // The session ends: the desktop may kill the program as soon as this returns.
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &application, [&] { delegate.applicationWillTerminate(); },
        Qt::DirectConnection);
    return QApplication::exec();
}
