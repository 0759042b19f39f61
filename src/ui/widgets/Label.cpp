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

/// Gives the text as it is: the toolkit's own interface takes "&" for the mark of a shortcut.
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

Label::Label(const UiContext& context, const QFont& font, ColorRole ink, WhenNarrow whenNarrow, QWidget* parent)
    : QLabel(parent)
    , m_context(context)
    , m_ink(ink)
    , m_whenNarrow(whenNarrow)
    , m_former {{}, ink}
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

void Label::crossFadeTo(const QString& newText, ColorRole ink, Seconds time)
{
    if (newText == text() && ink == m_ink)
        return;
    m_former = {text(), m_ink};
    setText(newText);
    m_ink = ink;
    m_isMessage = false;
    // Turned back half-way, it starts from what is on the screen.
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
    const auto tell = [this](QAccessible::Event type) {
        QAccessibleEvent event(this, type);
        QAccessible::updateAccessibility(&event);
    };
    tell(QAccessible::Alert);
    // AT-SPI knows no such event (Qt 6.4): screen readers there read a message when it comes into view.
    if (!std::exchange(m_isNewlyShown, false)) {
        tell(QAccessible::ObjectHide);
        tell(QAccessible::ObjectShow);
    }
}

void Label::showEvent(QShowEvent*) { m_isNewlyShown = true; }

/// Letter spacing also follows the last letter, where it would only push away what stands next.
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
    draw(painter, {text(), m_ink}, m_crossFade.value());
}

void Label::draw(QPainter& painter, const Look& look, double opacity) const
{
    painter.setOpacity(m_opacity * opacity);
    painter.setPen(toQColor(colorFor(look.ink, m_context.colors())));
    if (m_whenNarrow == WhenNarrow::Wrap) {
        painter.drawText(QRectF(rect()), static_cast<int>(alignment()) | Qt::TextWordWrap, look.text);
        return;
    }
    const double room = width() + font().letterSpacing();
    const auto shown = isCut() ? QFontMetricsF(font()).elidedText(look.text, Qt::ElideRight, room) : look.text;
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip, shown);
}

} // namespace cuebright
