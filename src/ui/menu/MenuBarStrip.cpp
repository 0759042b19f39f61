#include "ui/menu/MenuBarStrip.h"

#include "platform/Accessibility.h"
#include "platform/qt/QtColors.h"
#include "ui/base/Fonts.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QShortcut>
#include <QStyleOptionMenuItem>

#include <algorithm>

namespace cuebright {

namespace {

constexpr int kHeight = 26;
constexpr int kTop = 6;
constexpr int kSide = 8;
constexpr int kTitlePadding = 8;
constexpr double kFontSize = 12;
constexpr double kChosenFill = 0.6; // keeps the text readable in high contrast too
constexpr double kCornerRadius = 5;
constexpr Seconds kFadeTime {0.2};

} // namespace

/// Sets the titles' sizes, and lets Alt focus the menu bar on every desktop.
class MenuBarStrip::Style final : public QProxyStyle {
public:
    Style()
        : QProxyStyle(QStringLiteral("fusion"))
    {
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        switch (metric) {
        case PM_MenuBarItemSpacing:
        case PM_MenuBarHMargin:
        case PM_MenuBarVMargin:
        case PM_MenuBarPanelWidth:
            return 0;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }
    QSize sizeFromContents(
        ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const override
    {
        if (type == CT_MenuBarItem)
            return {size.width() + 2 * kTitlePadding, kHeight};
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    }
    int styleHint(
        StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const override
    {
        if (hint == SH_MenuBar_AltKeyNavigation || hint == SH_MenuBar_MouseTracking)
            return 1;
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

MenuBarStrip::MenuBarStrip(const UiContext& context, QWidget* panel)
    : QMenuBar(panel)
    , m_context(context)
    , m_fade(0, kFadeTime, [this] {
        setAttribute(Qt::WA_TransparentForMouseEvents, m_fade.value() == 0);
        update();
    })
{
    const auto style = new Style;
    style->setParent(this);
    setStyle(style);
    setFont(systemFont(kFontSize));
    setAccessibleName(QStringLiteral("Menu bar"));
    setAutoFillBackground(false);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    panel->installEventFilter(this);
    connect(new QShortcut(QKeySequence(Qt::Key_F10), panel), &QShortcut::activated, this, &MenuBarStrip::takeKeyboard);
    m_appearanceSubscription = context.platform.appearance.changed.subscribe([this] { update(); });
    m_accessibilitySubscription = context.platform.accessibility.changed.subscribe([this] { update(); });
    show(); // the panel may be visible already
    updateVisibility();
}

/// Simulates pressing and releasing Alt: QMenuBar has no function for this.
void MenuBarStrip::takeKeyboard()
{
    if (!isVisible() || hasFocus())
        return;
    QKeyEvent press(QEvent::ShortcutOverride, Qt::Key_Alt, Qt::NoModifier); // modifiers before the press
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Alt, Qt::AltModifier);
    QCoreApplication::sendEvent(window(), &press);
    QCoreApplication::sendEvent(window(), &release);
}

bool MenuBarStrip::eventFilter(QObject* watched, QEvent* event)
{
    const bool isHandled = QMenuBar::eventFilter(watched, event);
    if (watched != parentWidget())
        return isHandled;
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
        updateVisibility();
        break;
    case QEvent::Resize:
        layOut();
        break;
    default:
        break;
    }
    return isHandled;
}

void MenuBarStrip::actionEvent(QActionEvent* event)
{
    QMenuBar::actionEvent(event);
    layOut();
}

void MenuBarStrip::layOut()
{
    const int width = std::min(sizeHint().width(), parentWidget()->width() - 2 * kSide);
    setGeometry(kSide, kTop, width, kHeight);
    raise();
}

void MenuBarStrip::updateVisibility()
{
    const auto panel = parentWidget();
    const bool isWanted = panel->underMouse() || panel->isActiveWindow() || activeAction();
    m_fade.moveTo(isWanted ? 1 : 0, AnimatedValue::Motion::Animated);
}

void MenuBarStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(m_fade.value());
    const auto colors = m_context.colors();
    for (const auto action : actions()) {
        const auto area = actionGeometry(action);
        if (!area.isValid() || !rect().contains(area))
            continue;
        const bool isChosen = action == activeAction();
        if (isChosen) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(toQColor(colors.sep().withAlpha(kChosenFill)));
            painter.drawRoundedRect(area, kCornerRadius, kCornerRadius);
        }
        painter.setPen(toQColor(isChosen ? colors.text() : colors.muted()));
        const int mnemonics = hasFocus() ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
        painter.drawText(area, Qt::AlignCenter | Qt::TextSingleLine | mnemonics, action->text());
    }
}

} // namespace cuebright
