#include "panel/OpenSheets.h"

#include <QApplication>
#include <QDialog>

#include <algorithm>

namespace cuebright {

bool isWaitingForAnswer(const QWidget& window)
{
    const QWidget* const newest = QApplication::activeModalWidget();
    if (newest && newest->windowModality() == Qt::ApplicationModal)
        return true;
    // Not only the newest: another window may have a sheet as well.
    return std::ranges::any_of(window.findChildren<QDialog*>(),
        [](const QDialog* dialog) { return dialog->isVisible() && dialog->isModal(); });
}

} // namespace cuebright
