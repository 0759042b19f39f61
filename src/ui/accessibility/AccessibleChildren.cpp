#include "ui/accessibility/AccessibleChildren.h"

#include <algorithm>

namespace cuebright {

int AccessibleChildren::indexOf(const QAccessibleInterface* child) const
{
    const auto found = std::ranges::find(m_ids, child, QAccessible::accessibleInterface);
    return !child || found == m_ids.end() ? -1 : static_cast<int>(found - m_ids.begin());
}

void AccessibleChildren::clear()
{
    for (const auto id : m_ids) {
        if (id != 0)
            QAccessible::deleteAccessibleInterface(id);
    }
    m_ids.clear();
}

QAccessibleInterface* childContaining(const QAccessibleInterface& parent, int x, int y)
{
    for (int i = 0; i < parent.childCount(); ++i) {
        if (const auto child = parent.child(i); child->rect().contains(x, y))
            return child;
    }
    return nullptr;
}

} // namespace cuebright
