#include "ui/widgets/Label.h"

#include "platform/qt/QtColors.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace cuebright {

namespace {

constexpr int kUnlimited = 1 << 20;

/// Returns the text unchanged: Qt's own interface removes "&" as a mnemonic.
class LabelInterface final : public QAccessibleWidget {
public:
    explicit LabelInterface(Label* label)
        : QAccessibleWidget(label, QAccessible::StaticText)
    {
    }

    QAccessible::Role role() const override
    {
        return label().isMessage() ? QAccessible::AlertMessage : QAccessible::StaticText;
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Name)
            return QAccessibleWidget::text(kind);
        return label().accessibleName().isEmpty() ? label().text() : label().accessibleName();
    }

private:
    const Label& label() const { return *static_cast<const Label*>(widget()); }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    const auto label = dynamic_cast<Label*>(object);
    return label ? new LabelInterface(label) : nullptr;
}

} // namespace

Label::Label(const UiContext& context, const QFont& font, ColorRole color, WhenNarrow whenNarrow, QWidget* parent)
    : QLabel(parent)
    , m_context(context)
    , m_color(color)
    , m_whenNarrow(whenNarrow)
    , m_former {{}, color}
    , m_crossFade(1, Seconds(0), [this] { showCrossFade(); })
{
    QAccessible::installFactory(makeInterface);
    setFont(font);
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::NoTextInteraction);
    if (whenNarrow == WhenNarrow::Wrap)
        setWordWrap(true);
    else
        setSizePolicy(whenNarrow == WhenNarrow::Keep ? QSizePolicy::Fixed : QSizePolicy::Maximum, QSizePolicy::Fixed);
}

void Label::setInkOpacity(double opacity)
{
    m_opacity = opacity;
    update();
}

void Label::crossFadeTo(const QString& newText, ColorRole color, Seconds time)
{
    if (newText == text() && color == m_color)
        return;
    m_former = {text(), m_color};
    setText(newText);
    m_color = color;
    m_isMessage = false;
    // Reversed half-way, it starts from what is on the screen.
    m_crossFade.setDuration(time);
    m_crossFade.moveTo(1 - m_crossFade.value(), AnimatedValue::Motion::AtOnce);
    m_crossFade.moveTo(1, isVisible() ? AnimatedValue::Motion::Animated : AnimatedValue::Motion::AtOnce);
}

void Label::showCrossFade()
{
    if (m_crossFade.hasArrived())
        updateGeometry();
    update();
}

void Label::announce()
{
    m_isMessage = true;
    const auto notify = [this](QAccessible::Event type) {
        QAccessibleEvent event(this, type);
        QAccessible::updateAccessibility(&event);
    };
    notify(QAccessible::Alert);
    // Qt 6.4 sends no alert over AT-SPI; screen readers there announce a message when it is shown.
    if (!std::exchange(m_isNewlyShown, false)) {
        notify(QAccessible::ObjectHide);
        notify(QAccessible::ObjectShow);
    }
}

void Label::showEvent(QShowEvent*) { m_isNewlyShown = true; }

/// Without the letter spacing that Qt adds after the last letter too.
double Label::widthOf(const QString& text) const
{
    return text.isEmpty() ? 0 : QFontMetricsF(font()).horizontalAdvance(text) - font().letterSpacing();
}

QSize Label::sizeHint() const
{
    const double formerWidth = m_crossFade.hasArrived() ? 0 : widthOf(m_former.text);
    return {static_cast<int>(std::ceil(std::max(widthOf(text()), formerWidth))),
        static_cast<int>(std::ceil(QFontMetricsF(font()).height()))};
}

QSize Label::minimumSizeHint() const
{
    return m_whenNarrow == WhenNarrow::Keep ? sizeHint() : QSize(0, sizeHint().height());
}

int Label::heightForWidth(int width) const
{
    if (m_whenNarrow != WhenNarrow::Wrap)
        return -1;
    const QRectF room(0, 0, width, kUnlimited);
    return static_cast<int>(std::ceil(QFontMetricsF(font()).boundingRect(room, Qt::TextWordWrap, text()).height()));
}

bool Label::isCut() const { return m_whenNarrow == WhenNarrow::Elide && width() < sizeHint().width(); }

bool Label::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip)
        setToolTip(isCut() ? text().toHtmlEscaped() : QString());
    return QLabel::event(event);
}

void Label::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setFont(font());
    if (!m_crossFade.hasArrived())
        draw(painter, m_former, 1 - m_crossFade.value());
    draw(painter, {text(), m_color}, m_crossFade.value());
}

void Label::draw(QPainter& painter, const Look& look, double opacity) const
{
    painter.setOpacity(m_opacity * opacity);
    painter.setPen(toQColor(colorFor(look.color, m_context.colors())));
    if (m_whenNarrow == WhenNarrow::Wrap) {
        painter.drawText(QRectF(rect()), static_cast<int>(alignment()) | Qt::TextWordWrap, look.text);
        return;
    }
    const double room = width() + font().letterSpacing();
    const auto shown = isCut() ? QFontMetricsF(font()).elidedText(look.text, Qt::ElideRight, room) : look.text;
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip, shown);
}

} // namespace cuebright
