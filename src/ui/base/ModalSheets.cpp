#include "ui/base/ModalSheets.h"

#include <QApplication>
#include <QDialog>

#include <algorithm>

namespace cuebright {

// Qt returns only the newest modal dialog, but several windows can have one, and dialogs can be nested.

bool isWaitingForAnswer(const QWidget& window)
{
    const auto blocksAll = [](const QWidget* widget) {
        return widget->isVisible() && widget->windowModality() == Qt::ApplicationModal;
    };
    const auto blocksWindow = [](const QDialog* dialog) { return dialog->isVisible() && dialog->isModal(); };
    return std::ranges::any_of(QApplication::topLevelWidgets(), blocksAll)
        || std::ranges::any_of(window.findChildren<QDialog*>(), blocksWindow);
}

void dismissSheets(const QWidget& window)
{
    for (const auto sheet : window.findChildren<QDialog*>()) {
        if (sheet->isVisible())
            sheet->reject();
    }
}

} // namespace cuebright
