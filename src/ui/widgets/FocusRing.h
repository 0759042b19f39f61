#pragma once

#include "ui/base/UiContext.h"

#include <QFocusFrame>

namespace cuebright {

/// A ring around a widget that has the keyboard, for one that itself has no room for it. It is drawn on the parent of
/// the widget's parent.
///
/// Only the base's standing with screen readers is used, which pass over it.
class FocusRing final : public QFocusFrame {
public:
    /// Something large needs no ring as long as nobody goes through the window by Tab.
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
