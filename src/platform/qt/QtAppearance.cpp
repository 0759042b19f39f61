#include "platform/qt/QtAppearance.h"

#include "platform/qt/ApplicationPalette.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <QToolTip>

namespace cuebright {

namespace {

/// Fusion, but that a long menu scrolls instead of spreading over columns, and that the arrow of a menu bar without
/// room for all its titles is drawn: to read its picture of one, the toolkit would load its plug-ins for all image
/// formats, whether the arrow shows or not.
class Style final : public QProxyStyle {
public:
    Style()
        : QProxyStyle(QStringLiteral("Fusion"))
    {
    }

    int styleHint(
        StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const override
    {
        return hint == SH_Menu_Scrollable ? 1 : QProxyStyle::styleHint(hint, option, widget, returned);
    }

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override
    {
        if (icon != SP_ToolBarHorizontalExtensionButton)
            return QProxyStyle::standardIcon(icon, option, widget);
        QPixmap arrow(kArrowSize, kArrowSize);
        arrow.fill(Qt::transparent);
        QPainter painter(&arrow);
        QStyleOption plain;
        plain.rect = arrow.rect();
        plain.palette = QApplication::palette();
        drawPrimitive(PE_IndicatorArrowRight, &plain, &painter);
        return arrow;
    }

private:
    static constexpr int kArrowSize = 12;
};

void show(bool isDark)
{
    const auto palette = applicationPalette(isDark);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

} // namespace

QtAppearance::QtAppearance()
    : m_guessedDark(looksDark(QApplication::palette()))
    , m_isDark(m_guessedDark)
{
    QApplication::setStyle(new Style);
    show(m_isDark);
    qApp->installEventFilter(this);
}

void QtAppearance::choose(Choice choice)
{
    m_choice = choice;
    update();
}

void QtAppearance::setSystemIsDark(std::optional<bool> isDark)
{
    m_reportedDark = isDark;
    update();
}

bool QtAppearance::looksDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightnessF() < palette.color(QPalette::WindowText).lightnessF();
}

bool QtAppearance::eventFilter(QObject*, QEvent* event)
{
    // Every window is told, one after the other; one look at the end is enough.
    if (event->type() == QEvent::ThemeChange && !m_reportedDark && !std::exchange(m_guessWaits, true))
        QMetaObject::invokeMethod(
            this, [this] { guessAgain(); }, Qt::QueuedConnection);
    return false;
}

void QtAppearance::guessAgain()
{
    m_guessWaits = false;
    QApplication::setPalette(QPalette()); // the desktop's own shows only while there is none of ours
    m_guessedDark = looksDark(QApplication::palette());
    show(m_isDark);
    update();
}

void QtAppearance::update()
{
    const bool followedDark = m_reportedDark.value_or(m_guessedDark);
    const bool isDark = m_choice == Choice::FollowSystem ? followedDark : m_choice == Choice::Dark;
    if (isDark == m_isDark)
        return;
    m_isDark = isDark;
    show(isDark);
    changed.notify();
}

} // namespace cuebright
