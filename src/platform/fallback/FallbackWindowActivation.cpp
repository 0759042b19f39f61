#include "platform/system/WindowActivation.h"

#include <QWidget>

namespace cuebright {

// Not run on Windows or macOS yet. Windows may only flash the taskbar button.
void activateForUser(QWidget& window, const std::string&) { window.activateWindow(); }

void endLaunch(QWidget&, const std::string&) { }

} // namespace cuebright
