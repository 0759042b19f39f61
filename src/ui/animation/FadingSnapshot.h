#pragma once

#include "store/Change.h"

#include <QPixmap>
#include <QVariantAnimation>
#include <QWidget>

namespace cuebright {

/// Fades out a picture of what was on screen, above what has replaced it. Takes no input; deletes itself at the end.
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
