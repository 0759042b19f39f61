#include "platform/qt/QtAppearance.h"

#include "platform/qt/ApplicationPalette.h"
#include "platform/qt/QtWindowEvents.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <QToolTip>

namespace cuebright {

namespace {

/// Fusion with two changes: a long menu scrolls instead of using columns, and the extension arrow of a menu bar is
/// painted, because Qt would load all its image format plug-ins to read the one of the style, shown or not.
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

void applyPalette(bool isDark)
{
    const auto palette = applicationPalette(isDark);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

} // namespace

QtAppearance::QtAppearance(QtWindowEvents& windowEvents)
    : m_guessedDark(looksDark(QApplication::palette()))
    , m_isDark(m_guessedDark)
    , m_themeSubscription(windowEvents.themeChanged.subscribe([this] {
        if (!m_reportedDark)
            m_guessSoon.start(); // once, after the last window was notified
    }))
{
    QApplication::setStyle(new Style);
    applyPalette(m_isDark);
    m_guessSoon.setSingleShot(true);
    QObject::connect(&m_guessSoon, &QTimer::timeout, &m_guessSoon, [this] { guess(); });
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

void QtAppearance::guess()
{
    QApplication::setPalette(QPalette()); // gives access to the desktop's palette
    m_guessedDark = looksDark(QApplication::palette());
    applyPalette(m_isDark);
    update();
}

void QtAppearance::update()
{
    const bool followedDark = m_reportedDark.value_or(m_guessedDark);
    const bool isDark = m_choice == Choice::FollowSystem ? followedDark : m_choice == Choice::Dark;
    if (isDark == m_isDark)
        return;
    m_isDark = isDark;
    applyPalette(isDark);
    changed.notify();
}

} // namespace cuebright
