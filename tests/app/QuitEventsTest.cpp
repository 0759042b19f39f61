#include "app/QuitEvents.h"

#include <QApplication>
#include <QWidget>

#include <gtest/gtest.h>

namespace cuebright::test {

TEST(QuitEvents, TheDesktopsRequestToQuitIsHeardWhateverWindowsAreOpen)
{
    QWidget window;
    window.show();
    int quits = 0;
    const QuitEvents events([&] { ++quits; });
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_EQ(quits, 1);
    EXPECT_TRUE(window.isVisible());
}

} // namespace cuebright::test
