#include "ui/widgets/FocusRing.h"

#include "platform/qt/QtColors.h"

#include <QFocusEvent>
#include <QPainter>

namespace cuebright {

namespace {

constexpr int kDistance = 5;
constexpr double kCornerRadius = 5;

} // namespace

void drawFocusRing(QPainter& painter, const QRectF& rect, double cornerRadius, const Colors& colors)
{
    constexpr double kInset = kFocusRingWidth / 2;
    painter.setPen(QPen(toQColor(colors.accent()), kFocusRingWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(kInset, kInset, -kInset, -kInset), cornerRadius, cornerRadius);
}

FocusRing::FocusRing(const UiContext& context, QWidget* target, When when)
    : QFocusFrame(target)
    , m_context(context)
    , m_target(target)
    , m_when(when)
{
    hide();
    target->installEventFilter(this);
    target->parentWidget()->installEventFilter(this);
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn: {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (watched == m_target)
            m_isReachedByTab = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
        place();
        break;
    }
    case QEvent::FocusOut:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        place();
        break;
    default:
        break;
    }
    return false;
}

void FocusRing::place()
{
    const auto canvas = m_target->parentWidget()->parentWidget();
    const bool isWanted = m_when == When::Focused || m_isReachedByTab;
    if (!canvas || !isWanted || !m_target->hasFocus() || !m_target->isVisible())
        return hide();
    if (parentWidget() != canvas)
        setParent(canvas);
    setGeometry(QRect(m_target->mapTo(canvas, QPoint()), m_target->size())
                    .adjusted(-kDistance, -kDistance, kDistance, kDistance));
    show();
    raise();
}

void FocusRing::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawFocusRing(painter, rect(), kCornerRadius, m_context.colors());
}

} // namespace cuebright
