#include "app/Application.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace cuebright::test {

TEST(Application, TheDesktopsRequestToQuitIsHeardWhateverWindowsAreOpen)
{
    auto& application = dynamic_cast<Application&>(*QCoreApplication::instance());
    QWidget window;
    window.show();
    int quits = 0;
    application.quitRequested = [&] { ++quits; };
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(&application, &quit);
    application.quitRequested = nullptr;
    EXPECT_EQ(quits, 1);
    EXPECT_TRUE(window.isVisible());
}

} // namespace cuebright::test
