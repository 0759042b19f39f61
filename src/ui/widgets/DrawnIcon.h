#pragma once

#include <QIconEngine>

namespace cuebright {

/// An icon engine that draws its pixmaps on a transparent background, without a cache.
class DrawnIcon : public QIconEngine {
public:
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
};

} // namespace cuebright
