#include "ui/card/CardArea.h"

#include "foundation/NotificationCenter.h"
#include "store/CardStore.h"
#include "ui/base/LinkOpener.h"
#include "ui/base/Notifications.h"
#include "ui/card/CardAccessible.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <utility>

namespace cuebright {

void CardArea::keyPressEvent(QKeyEvent* event)
{
    const auto bar = verticalScrollBar();
    switch (event->key()) {
    case Qt::Key_Up:
        return bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
    case Qt::Key_Down:
        return bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    case Qt::Key_Home:
        return bar->triggerAction(QAbstractSlider::SliderToMinimum);
    case Qt::Key_End:
        if (m_layout)
            m_layout->layOutThrough(m_layout->blocks().size() - 1);
        updateScrollRange();
        return bar->triggerAction(QAbstractSlider::SliderToMaximum);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (const auto link = focusedLink())
            return openLink(link->target);
        break;
    default:
        break;
    }
    event->ignore(); // Page Up and Page Down are for the whole panel
}

/// Tab goes through the card's links before it leaves the card.
bool CardArea::focusNextPrevChild(bool next)
{
    const auto links = m_layout ? m_layout->links() : std::vector<CardLayout::Link>();
    std::optional<std::size_t> following;
    if (next)
        following = m_focusedLink ? *m_focusedLink + 1 : 0;
    else if (m_focusedLink && *m_focusedLink > 0)
        following = *m_focusedLink - 1;
    m_focusedLink = following && *following < links.size() ? following : std::nullopt;
    viewport()->update();
    if (!m_focusedLink)
        return QAbstractScrollArea::focusNextPrevChild(next);
    const auto rect = links[*m_focusedLink].rect;
    const auto bar = verticalScrollBar();
    bar->setValue(std::clamp(bar->value(), static_cast<int>(std::ceil(rect.bottom())) - viewport()->height(),
        std::max(static_cast<int>(rect.top()), static_cast<int>(std::ceil(rect.bottom())) - viewport()->height())));
    CardAccessible::notifyFocusMoved(*this);
    return true;
}

void CardArea::focusOutEvent(QFocusEvent* event)
{
    m_focusedLink.reset();
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

std::optional<std::string> CardArea::linkAt(const QPoint& position) const
{
    if (!m_layout || m_transition.isRunning())
        return std::nullopt;
    return m_layout->linkAt(QPointF(position) + QPointF(0, verticalScrollBar()->value()));
}

void CardArea::mousePressEvent(QMouseEvent* event)
{
    m_pressedLink = event->button() == Qt::LeftButton ? linkAt(event->pos()) : std::nullopt;
    event->setAccepted(m_pressedLink.has_value());
}

void CardArea::mouseMoveEvent(QMouseEvent* event)
{
    const auto link = linkAt(event->pos());
    viewport()->setCursor(link && isOpenableLink(*link) ? Qt::PointingHandCursor : Qt::ArrowCursor);
    event->setAccepted(m_pressedLink.has_value()); // ignored, it reaches the panel, which may be dragged
}

void CardArea::mouseReleaseEvent(QMouseEvent* event)
{
    const auto pressed = std::exchange(m_pressedLink, std::nullopt);
    event->setAccepted(pressed.has_value());
    if (pressed && pressed == linkAt(event->pos()))
        openLink(*pressed);
}

void CardArea::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && !linkAt(event->pos()))
        m_context.store.beginEditing();
}

void CardArea::contextMenuEvent(QContextMenuEvent* event)
{
    auto& store = m_context.store;
    const auto menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(QStringLiteral("Edit Card"), this, [&store] { store.beginEditing(); });
    menu->addAction(QStringLiteral("New Card"), this, [&store] { store.addCard(); });
    menu->addSeparator();
    const auto remove = menu->addAction(
        QStringLiteral("Delete Card"), this, [this] { m_context.notifications.post(kDeleteCardNotification); });
    remove->setEnabled(store.cardCount() >= 2);
    menu->popup(
        event->reason() == QContextMenuEvent::Mouse ? event->globalPos() : viewport()->mapToGlobal(QPoint(0, 0)));
}

} // namespace cuebright
