#pragma once

#include "store/Change.h"

#include <QPixmap>
#include <QVariantAnimation>
#include <QWidget>

namespace cuebright {

/// A picture of what was on screen, fading away over what has taken its place. Neither mouse nor keyboard see it; it
/// deletes itself at its end.
class FadingSnapshot final : public QWidget {
public:
    /// Covers `area` of `parent`.
    FadingSnapshot(QPixmap picture, const QRect& area, const Animation& animation, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_picture;
    QVariantAnimation m_progress;
};

} // namespace cuebright
