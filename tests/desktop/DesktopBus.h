#pragma once

#include "desktop/RunningPanel.h"

#include <QCoreApplication>
#include <QDBusConnection>

namespace cuebright::test {

/// A new connection to the desktop's message bus, as another program has one.
inline QDBusConnection connectToDesktop(const QString& name)
{
    static int count = 1;
    static char program[] = "desktop_tests";
    static char* arguments[] = {program, nullptr};
    static const QCoreApplication application(count, arguments);
    return QDBusConnection::connectToBus(
        QString::fromStdString(desktop().environment().at("DBUS_SESSION_BUS_ADDRESS")), name);
}

} // namespace cuebright::test
