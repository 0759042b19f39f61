#include "panel/OpenSheets.h"

#include <QApplication>
#include <QWidget>

namespace cuebright {

bool isWaitingForAnswer(const QWidget& window)
{
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal && modal->windowModality() == Qt::ApplicationModal)
        return true;
    while (modal && modal != &window)
        modal = modal->parentWidget();
    return modal;
}

} // namespace cuebright
