#pragma once

#include <QIconEngine>

namespace cuebright {

/// An icon that is drawn anew each time it is asked for, on nothing.
class DrawnIcon : public QIconEngine {
public:
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
};

} // namespace cuebright
