#include "ui/card/CardAccessible.h"

#include "ui/card/BlockAccessible.h"
#include "ui/card/CardArea.h"

namespace cuebright {

namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    const auto area = dynamic_cast<CardArea*>(object);
    return area ? new CardAccessible(*area) : nullptr;
}

} // namespace

CardAccessible::CardAccessible(CardArea& area)
    : QAccessibleWidget(&area, QAccessible::Document)
    , m_area(area)
    , m_contentSubscription(area.contentChanged.subscribe([this] { onContentChanged(); }))
{
}

void CardAccessible::install() { QAccessible::installFactory(makeInterface); }

void CardAccessible::onContentChanged()
{
    m_children.clear();
    QAccessibleEvent event(&m_area, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&event);
}

void CardAccessible::notifyFocusMoved(CardArea& area)
{
    if (!QAccessible::isActive())
        return;
    const auto card = QAccessible::queryAccessibleInterface(&area);
    if (const auto link = card ? card->focusChild() : nullptr) {
        QAccessibleEvent event(link, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

QAccessibleInterface* CardAccessible::focusChild() const
{
    const auto focused = m_area.focusedLink();
    const auto block = focused ? child(static_cast<int>(focused->block)) : nullptr;
    for (int i = 0; block && i < block->childCount(); ++i) {
        if (const auto link = block->child(i); link->state().focused)
            return link;
    }
    return QAccessibleWidget::focusChild();
}

int CardAccessible::childCount() const
{
    const auto layout = m_area.cardLayout();
    return layout ? static_cast<int>(layout->blocks().size()) : 0;
}

QAccessibleInterface* CardAccessible::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    return m_children.at(index, [&] { return new BlockAccessible(m_area, static_cast<std::size_t>(index)); });
}

} // namespace cuebright
