#include "panel/CardArea.h"

#include "markdown/CardParser.h"
#include "store/CardStore.h"
#include "theme/QtColors.h"

#include <QPainter>
#include <QScrollBar>

#include <cmath>

namespace cuebright {

CardArea::CardArea(const PanelContext& context, QWidget* parent)
    : QAbstractScrollArea(parent)
    , m_context(context)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("Card content"));
    viewport()->setAutoFillBackground(false);
    verticalScrollBar()->setSingleStep(20);
}

void CardArea::refresh()
{
    const auto card = m_context.store.activeCard();
    const auto id = card ? std::optional(card->id) : std::nullopt;
    layOut();
    if (id != m_shownCard)
        verticalScrollBar()->setValue(0);
    m_shownCard = id;
}

void CardArea::layOut()
{
    const auto card = m_context.store.activeCard();
    if (card)
        m_layout.emplace(parseMarkdown(card->content), m_context.store.fontSize(), viewport()->width());
    else
        m_layout.reset();
    const auto height = m_layout ? static_cast<int>(std::ceil(m_layout->height())) : 0;
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, std::max(height - viewport()->height(), 0));
    viewport()->update();
}

void CardArea::paintEvent(QPaintEvent* event)
{
    if (!m_layout)
        return;
    QPainter painter(viewport());
    const int scrolled = verticalScrollBar()->value();
    painter.translate(0, -scrolled);
    m_layout->draw(painter, m_context.colors(), QRectF(event->rect().translated(0, scrolled)));
}

void CardArea::resizeEvent(QResizeEvent*) { layOut(); }

void CardArea::mouseDoubleClickEvent(QMouseEvent*) { m_context.store.beginEditing(); }

} // namespace cuebright
