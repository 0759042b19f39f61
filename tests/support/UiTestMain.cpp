#include "app/Application.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

/// Runs the tests without a display; files go to a temporary folder.
int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    for (const char* folder : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})
        qputenv(folder, home.filePath(QString::fromLatin1(folder)).toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    cuebright::Application application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Cuebright"));
    return RUN_ALL_TESTS();
}
