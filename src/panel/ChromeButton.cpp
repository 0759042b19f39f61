#include "panel/ChromeButton.h"

#include "panel/Easing.h"
#include "theme/CuebrightChromeStyle.h"
#include "theme/Fonts.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace cuebright {

namespace {

constexpr int kHeight = 28;
constexpr int kFrameWidth = 30;
constexpr int kSymbolSize = 13;
constexpr int kTitlePadding = 10;
constexpr double kTitleSpacing = 1;

QFont fontOf(ChromeButton::Kind kind)
{
    if (kind == ChromeButton::Kind::Arrow)
        return systemFont(14, QFont::Medium);
    return letterSpaced(monospacedFont(10, QFont::DemiBold), kTitleSpacing);
}

} // namespace

ChromeButton::ChromeButton(const PanelContext& context, Kind kind, const QString& text, QWidget* parent)
    : PanelButton(context, parent)
    , m_kind(kind)
{
    setText(text);
    setFont(fontOf(kind));
    m_press.setDuration(CuebrightChromeStyle::kPressAnimationTime);
    m_press.setEasingCurve(easingCurve(Animation::Curve::EaseOut));
    m_press.setStartValue(0.0);
    m_press.setEndValue(0.0);
    connect(&m_press, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(this, &QAbstractButton::pressed, this, [this] { animatePress(true); });
    connect(this, &QAbstractButton::released, this, [this] { animatePress(false); });
}

ChromeButton::ChromeButton(const PanelContext& context, Icon icon, const QString& name, QWidget* parent)
    : ChromeButton(context, Kind::Symbol, {}, parent)
{
    m_icon = icon;
    setToolTip(name);
    setAccessibleName(name);
}

QSize ChromeButton::sizeHint() const
{
    if (m_kind != Kind::Title)
        return {kFrameWidth, kHeight};
    return {static_cast<int>(std::ceil(QFontMetricsF(font()).horizontalAdvance(text()))) + 2 * kTitlePadding, kHeight};
}

void ChromeButton::animatePress(bool isDown)
{
    const auto from = m_press.currentValue();
    m_press.stop();
    m_press.setStartValue(from);
    m_press.setEndValue(isDown ? 1.0 : 0.0);
    m_press.start();
}

void ChromeButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const CuebrightChromeStyle::State state {m_press.currentValue().toDouble(), isEnabled(), hasFocus()};
    CuebrightChromeStyle(m_context.colors()).draw(painter, rect(), state, [this](QPainter& labelPainter) {
        if (m_icon) {
            QRectF symbol(0, 0, kSymbolSize, kSymbolSize);
            symbol.moveCenter(QRectF(rect()).center());
            return drawIcon(labelPainter, *m_icon, symbol, labelPainter.pen().color());
        }
        labelPainter.setFont(font());
        labelPainter.drawText(rect(), Qt::AlignCenter, text());
    });
}

} // namespace cuebright
