#pragma once

#include "foundation/Signal.h"
#include "ui/animation/AnimatedValue.h"
#include "ui/base/UiContext.h"

#include <QMenuBar>

namespace cuebright {

/// The panel's menu bar, in the empty strip above the header. It is only as wide as its titles, so that the rest of the
/// strip still moves the panel. It fades out while the panel is neither active nor under the pointer, but stays visible
/// to Qt, because a hidden menu bar gets no keys. Alt or F10 moves the focus to it.
///
/// Empty on desktops with a global menu bar.
class MenuBarStrip final : public QMenuBar {
public:
    MenuBarStrip(const UiContext& context, QWidget* panel);

    /// The opacity, from 0 to 1.
    [[nodiscard]] double fade() const { return m_fade.value(); }

    /// Moves the focus to the first title.
    void takeKeyboard();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void actionEvent(QActionEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    class Style;

    void layOut();
    void updateVisibility();

    const UiContext& m_context;
    AnimatedValue m_fade;
    Subscription m_appearanceSubscription;
    Subscription m_accessibilitySubscription;
};

} // namespace cuebright
