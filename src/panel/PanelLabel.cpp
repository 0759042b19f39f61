#include "panel/PanelLabel.h"

#include "theme/QtColors.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace cuebright {

PanelLabel::PanelLabel(const PanelContext& context, const QFont& font, Ink ink, WhenNarrow whenNarrow, QWidget* parent)
    : QLabel(parent)
    , m_context(context)
    , m_ink(ink)
    , m_whenNarrow(whenNarrow)
{
    setFont(font);
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::NoTextInteraction);
    setSizePolicy(whenNarrow == WhenNarrow::Keep ? QSizePolicy::Fixed : QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize PanelLabel::sizeHint() const
{
    const QFontMetricsF metrics(font());
    return {
        static_cast<int>(std::ceil(metrics.horizontalAdvance(text()))), static_cast<int>(std::ceil(metrics.height()))};
}

QSize PanelLabel::minimumSizeHint() const
{
    return m_whenNarrow == WhenNarrow::Keep ? sizeHint() : QSize(0, sizeHint().height());
}

void PanelLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setFont(font());
    painter.setPen(m_ink == Ink::Red ? QColor(Qt::red) : toQColor(m_context.colors().muted()));
    const bool isCut = width() < sizeHint().width();
    const auto shown = isCut ? QFontMetricsF(font()).elidedText(text(), Qt::ElideRight, width()) : text();
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

} // namespace cuebright
