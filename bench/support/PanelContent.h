#pragma once

#include "foundation/NotificationCenter.h"
#include "platform/qt/QtPlatform.h"
#include "store/CardStore.h"
#include "ui/panel/CardContentView.h"

#include <QTemporaryDir>

namespace cuebright::bench {

/// The panel's content in its usual size, with real services and files that go away.
struct PanelContent {
    QTemporaryDir folder;
    bool isIsolated = qputenv("XDG_DATA_HOME", folder.path().toUtf8());
    QtPlatform platform {(folder.path() + QStringLiteral("/preferences.conf")).toStdString()};
    NotificationCenter notifications;
    CardStore store {platform.services()};
    UiContext context {store, notifications, platform.services(), platform.desktop()};
    CardContentView view {context};

    PanelContent() { view.resize(720, 560); }
};

} // namespace cuebright::bench
