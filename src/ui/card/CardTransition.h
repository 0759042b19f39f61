#pragma once

#include "store/Change.h"

#include <QPixmap>
#include <QRectF>
#include <QVariantAnimation>

#include <functional>

class QPainter;

namespace cuebright {

/// The transition from one card to the next: a slide in the direction of navigation, or a cross-fade with slight
/// scaling when the deck changes. The old card is a picture, so that a transition can start while another one runs.
class CardTransition final {
public:
    enum class Kind { SlideForward, SlideBackward, SwitchDeck };

    /// `repaint` is called for each frame.
    explicit CardTransition(const std::function<void()>& repaint);

    [[nodiscard]] static Kind kindFor(bool isDeckSwitch, NavigationDirection direction);

    void start(Kind kind, QPixmap leaving, const Animation& animation);
    void stop();
    [[nodiscard]] bool isRunning() const { return m_progress.state() == QAbstractAnimation::Running; }

    /// Draws one frame into `area`: the old card's picture and, by `drawArriving`, the new card.
    void draw(QPainter& painter, const QRectF& area, const std::function<void()>& drawArriving) const;

private:
    Kind m_kind = Kind::SlideForward;
    QPixmap m_leaving;
    QVariantAnimation m_progress;
};

} // namespace cuebright
