#include "app/AfterFirstFrame.h"
#include "app/AppDelegate.h"
#include "app/Application.h"
#include "app/ExitSave.h"
#include "platform/ApplicationId.h"
#include "platform/qt/QtPlatform.h"
#include "platform/system/ProcessSetup.h"
#include "platform/system/SingleInstance.h"
#include "ui/panel/NotesPanel.h"

#include <string>
#include <vector>

using namespace cuebright;

int main(int, char* argv[])
{
    SingleInstance instance; // first: a launch that only passes its request on does not need Qt
    if (const auto status = instance.claimLock())
        return *status;
    ProcessSetup process;

    // The program has no command-line options, so Qt gets none of the user's either.
    auto options = ProcessSetup::qtOptions();
    std::vector<char*> arguments {argv[0]};
    for (auto& option : options)
        arguments.push_back(option.data());
    auto argumentCount = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    Application application(argumentCount, arguments.data());
    QApplication::setApplicationName(QStringLiteral("Cuebright"));
    QApplication::setApplicationVersion(QStringLiteral(CUEBRIGHT_VERSION));
    QApplication::setQuitOnLastWindowClosed(false); // the panel may be hidden
    QApplication::setDesktopFileName(QString::fromLatin1(kApplicationId));
    process.onApplicationCreated();
    if (const auto status = instance.claimName())
        return *status;

    QtPlatform platform;
    AppDelegate delegate(platform.services(), platform.desktop());
    const ExitSave exitSave([&] { delegate.saveEverything(); });
    delegate.applicationDidFinishLaunching();
    instance.deliver([&](const RemoteRequest& request) { delegate.perform(request); });
    const AfterFirstFrame firstFrame(delegate.panelWindow(), [&] {
        platform.start();
        delegate.onFirstFrame();
    });

    application.quitRequested = [&] { delegate.quit(); };
    const auto onRequest = process.terminationRequested.subscribe([&] { delegate.quit(); });
    QObject::connect(
        &application, &QCoreApplication::aboutToQuit, &application, [&] { delegate.applicationWillTerminate(); });
    // At the end of the session the desktop may kill the program as soon as this returns.
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &application, [&] { delegate.applicationWillTerminate(); },
        Qt::DirectConnection);
    return QApplication::exec();
}
