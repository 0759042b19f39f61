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
constexpr int kTitlePadding = 10;
constexpr int kTitleSize = 10;
constexpr double kTitleSpacing = 1;
constexpr QChar kCommandKey(0x2318);
constexpr double kCommandKeyWidth = kTitleSize + 2 * kTitleSpacing;

/// A title in two parts: whether the command key's sign comes first, and the words.
struct Title {
    explicit Title(const QString& text)
        : hasCommandKey(text.startsWith(kCommandKey))
        , words(hasCommandKey ? text.mid(1) : text)
    {
    }

    [[nodiscard]] double width(const QFont& font) const
    {
        return (hasCommandKey ? kCommandKeyWidth : 0) + QFontMetricsF(font).horizontalAdvance(words);
    }

    bool hasCommandKey;
    QString words;
};

/// As large as `side`, in the middle of `rect`, in the pen's colour.
void drawSymbol(QPainter& painter, Icon icon, double side, const QRectF& rect)
{
    QRectF place(0, 0, side, side);
    place.moveCenter(rect.center());
    drawIcon(painter, icon, place, painter.pen().color());
}

} // namespace

ChromeButton::ChromeButton(const PanelContext& context, std::optional<Symbol> symbol, QWidget* parent)
    : PanelButton(context, parent)
    , m_symbol(symbol)
{
    m_press.setDuration(CuebrightChromeStyle::kPressAnimationTime);
    m_press.setEasingCurve(easingCurve(Animation::Curve::EaseOut));
    m_press.setStartValue(0.0);
    m_press.setEndValue(0.0);
    connect(&m_press, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(this, &QAbstractButton::pressed, this, [this] { animatePress(true); });
    connect(this, &QAbstractButton::released, this, [this] { animatePress(false); });
}

ChromeButton::ChromeButton(const PanelContext& context, const QString& text, QWidget* parent)
    : ChromeButton(context, std::nullopt, parent)
{
    setText(text);
    setFont(letterSpaced(monospacedFont(kTitleSize, QFont::DemiBold), kTitleSpacing));
}

ChromeButton::ChromeButton(const PanelContext& context, Icon icon, int side, const QString& name, QWidget* parent)
    : ChromeButton(context, Symbol {icon, side}, parent)
{
    setToolTip(name);
    setAccessibleName(name);
}

QSize ChromeButton::sizeHint() const
{
    if (m_symbol)
        return {kFrameWidth, kHeight};
    return {static_cast<int>(std::ceil(Title(text()).width(font()))) + 2 * kTitlePadding, kHeight};
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
        if (m_symbol)
            drawSymbol(labelPainter, m_symbol->icon, m_symbol->side, rect());
        else
            drawTitle(labelPainter);
    });
}

void ChromeButton::drawTitle(QPainter& painter) const
{
    const Title title(text());
    QRectF place(0, 0, title.width(font()), height());
    place.moveCenter(QRectF(rect()).center());
    if (title.hasCommandKey) {
        drawSymbol(painter, Icon::Command, kTitleSize, {place.x(), place.y(), kTitleSize, place.height()});
        place.setLeft(place.left() + kCommandKeyWidth);
    }
    painter.setFont(font());
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip, title.words);
}

} // namespace cuebright
