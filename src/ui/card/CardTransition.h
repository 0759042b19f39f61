#pragma once

#include "store/Change.h"

#include <QPixmap>
#include <QRectF>
#include <QVariantAnimation>

#include <functional>

class QPainter;

namespace cuebright {

/// One card giving way to another: a slide in the direction of travel, or a fade with a little growth where the deck
/// changes. What was on screen is a picture, so that a new transition can start in the middle of the last one.
class CardTransition final {
public:
    enum class Kind { SlideForward, SlideBackward, SwitchDeck };

    /// `repaint` is called for each frame.
    explicit CardTransition(const std::function<void()>& repaint);

    [[nodiscard]] static Kind kindFor(bool isDeckSwitch, NavigationDirection direction);

    void start(Kind kind, QPixmap leaving, const Animation& animation);
    void stop();
    [[nodiscard]] bool isRunning() const { return m_progress.state() == QAbstractAnimation::Running; }

    /// Draws a frame into `area`: the picture of what leaves, and what `drawArriving` draws.
    void draw(QPainter& painter, const QRectF& area, const std::function<void()>& drawArriving) const;

private:
    Kind m_kind = Kind::SlideForward;
    QPixmap m_leaving;
    QVariantAnimation m_progress;
};

} // namespace cuebright
