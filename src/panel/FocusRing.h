#pragma once

#include "panel/PanelContext.h"

#include <QFocusFrame>

namespace cuebright {

/// A ring around a widget that has the keyboard, for one that itself has no room for it. It is drawn on the parent of
/// the widget's parent.
///
/// Only the base's standing with screen readers is used, which pass over it.
class FocusRing final : public QFocusFrame {
public:
    FocusRing(const PanelContext& context, QWidget* target);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void place();

    const PanelContext& m_context;
    QWidget* m_target;
};

} // namespace cuebright
