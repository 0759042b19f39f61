#pragma once

#include "foundation/Signal.h"
#include "ui/animation/AnimatedValue.h"
#include "ui/base/UiContext.h"

#include <QMenuBar>

namespace cuebright {

/// The panel's menu bar, over the empty strip above the header, as wide as its titles and no wider: what is beside it
/// still moves the panel. It fades away while neither the pointer nor the keyboard is in the panel; but it stays where
/// it is, for a menu bar that is hidden has no keys. Alt or F10 gives it the keyboard.
///
/// Where the desktop shows the menus of programs in a bar of its own, they are there and nothing is here.
class MenuBarStrip final : public QMenuBar {
public:
    MenuBarStrip(const UiContext& context, QWidget* panel);

    /// 0 = faded away, 1 = there.
    [[nodiscard]] double fade() const { return m_fade.value(); }

    /// Gives it the keyboard, the first title first.
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
