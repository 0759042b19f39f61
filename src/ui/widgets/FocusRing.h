#pragma once

#include "ui/base/UiContext.h"

#include <QFocusFrame>

namespace cuebright {

/// Logical pixels.
inline constexpr double kFocusRingWidth = 2;

/// Draws a focus ring along the inside of `rect`.
void drawFocusRing(QPainter& painter, const QRectF& rect, double cornerRadius, const Colors& colors);

/// A focus ring for a widget that has no room for its own, drawn by the widget's grandparent. Derives from QFocusFrame
/// so that screen readers ignore it.
class FocusRing final : public QFocusFrame {
public:
    /// When the ring shows: whenever `target` has focus, or only after it was reached by Tab or Shift+Tab.
    enum class When { Focused, ReachedByTab };

    FocusRing(const UiContext& context, QWidget* target, When when = When::Focused);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void place();

    const UiContext& m_context;
    QWidget* m_target;
    When m_when;
    bool m_isReachedByTab = false;
};

} // namespace cuebright
