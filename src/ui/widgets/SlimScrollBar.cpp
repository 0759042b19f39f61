#include "ui/widgets/SlimScrollBar.h"

#include <QScrollBar>

namespace cuebright {

void makeSlim(QScrollBar& bar)
{
    // A style sheet also moves the clickable parts. Its palette() follows the appearance.
    bar.setStyleSheet(QStringLiteral("QScrollBar:vertical { background: transparent; width: 8px; margin: 0; }"
                                     "QScrollBar::handle:vertical { background: palette(mid); border-radius: 3px;"
                                     " min-height: 28px; margin-left: 2px; }"
                                     "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }"
                                     "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical"
                                     " { background: transparent; }"));
}

} // namespace cuebright
