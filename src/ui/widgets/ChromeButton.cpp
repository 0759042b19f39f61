#include "ui/widgets/ChromeButton.h"

#include "platform/qt/QtColors.h"
#include "ui/base/Fonts.h"
#include "ui/widgets/CuebrightChromeStyle.h"

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

/// A title, split into a leading "⌘" and the rest.
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

/// Centred in `rect`, in the pen's colour.
void drawSymbol(QPainter& painter, Icon icon, double side, const QRectF& rect)
{
    QRectF place(0, 0, side, side);
    place.moveCenter(rect.center());
    drawIcon(painter, icon, place, painter.pen().color());
}

} // namespace

ChromeButton::ChromeButton(const UiContext& context, std::optional<Symbol> symbol, QWidget* parent)
    : ButtonBase(context, parent)
    , m_symbol(symbol)
    , m_frameWidth(kFrameWidth)
    , m_press(
          0, Seconds(CuebrightChromeStyle::kPressAnimationTime / 1000.0), [this] { update(); },
          Animation::Curve::EaseOut)
{
    connect(this, &QAbstractButton::pressed, this, [this] { m_press.moveTo(1, AnimatedValue::Motion::Animated); });
    connect(this, &QAbstractButton::released, this, [this] { m_press.moveTo(0, AnimatedValue::Motion::Animated); });
}

ChromeButton::ChromeButton(const UiContext& context, const QString& text, QWidget* parent)
    : ChromeButton(context, std::nullopt, parent)
{
    setText(text);
    setFont(letterSpaced(monospacedFont(kTitleSize, QFont::DemiBold), kTitleSpacing));
}

ChromeButton::ChromeButton(const UiContext& context, Icon icon, int side, const QString& name, QWidget* parent)
    : ChromeButton(context, Symbol {icon, side}, parent)
{
    setName(name);
}

void ChromeButton::setName(const QString& name)
{
    setToolTip(name);
    setAccessibleName(name);
}

void ChromeButton::setFrameWidth(int width)
{
    m_frameWidth = width;
    updateGeometry();
}

void ChromeButton::setSymbol(Icon icon, ColorRole color, const QString& name)
{
    if (name != accessibleName())
        setName(name);
    if (m_symbol->icon == icon && m_symbol->color == color)
        return; // most calls come with each second of the timer
    m_symbol->icon = icon;
    m_symbol->color = color;
    update();
}

QSize ChromeButton::sizeHint() const
{
    if (m_symbol)
        return {m_frameWidth, kHeight};
    return {static_cast<int>(std::ceil(Title(text()).width(font()))) + 2 * kTitlePadding, kHeight};
}

void ChromeButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const auto colors = m_context.colors();
    const CuebrightChromeStyle::State state {m_press.value(), isEnabled(), hasFocus()};
    CuebrightChromeStyle(colors).draw(painter, rect(), state, [&](QPainter& labelPainter) {
        if (m_symbol && m_symbol->color)
            labelPainter.setPen(toQColor(colorFor(*m_symbol->color, colors)));
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
