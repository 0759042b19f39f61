#include "ui/card/CardAccessible.h"

#include "ui/card/BlockAccessible.h"
#include "ui/card/CardArea.h"

#include <algorithm>

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
    , m_contentSubscription(area.contentChanged.subscribe([this] { takeChangedContent(); }))
{
}

CardAccessible::~CardAccessible() { forgetChildren(); }

void CardAccessible::install() { QAccessible::installFactory(makeInterface); }

void CardAccessible::takeChangedContent()
{
    forgetChildren();
    QAccessibleEvent event(&m_area, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&event);
}

void CardAccessible::focusMoved(CardArea& area)
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

void CardAccessible::forgetChildren()
{
    for (const auto id : m_children) {
        if (id != 0)
            QAccessible::deleteAccessibleInterface(id);
    }
    m_children.clear();
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
    m_children.resize(static_cast<std::size_t>(childCount()));
    auto& id = m_children[static_cast<std::size_t>(index)];
    if (id == 0)
        id = QAccessible::registerAccessibleInterface(new BlockAccessible(m_area, static_cast<std::size_t>(index)));
    return QAccessible::accessibleInterface(id);
}

int CardAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    const auto isChild = [child](
                             QAccessible::Id id) { return id != 0 && QAccessible::accessibleInterface(id) == child; };
    const auto it = std::find_if(m_children.begin(), m_children.end(), isChild);
    return it == m_children.end() ? -1 : static_cast<int>(it - m_children.begin());
}

QAccessibleInterface* CardAccessible::childAt(int x, int y) const
{
    for (int i = 0; i < childCount(); ++i) {
        if (child(i)->rect().contains(x, y))
            return child(i);
    }
    return nullptr;
}

} // namespace cuebright
