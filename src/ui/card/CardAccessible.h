#pragma once

#include "foundation/Signal.h"
#include "ui/accessibility/AccessibleChildren.h"

#include <QAccessibleWidget>

namespace cuebright {

class CardArea;

/// The card as a screen reader sees it: one element for each block, and one for each link in it.
class CardAccessible final : public QAccessibleWidget {
public:
    explicit CardAccessible(CardArea& area);

    /// Gives every card area this interface from now on.
    static void install();
    /// Call when the focus has moved to a link of the card.
    static void notifyFocusMoved(CardArea& area);

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        return m_children.indexOf(child);
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override { return childContaining(*this, x, y); }
    [[nodiscard]] QAccessibleInterface* focusChild() const override;

private:
    void onContentChanged();

    CardArea& m_area;
    mutable AccessibleChildren m_children;
    Subscription m_contentSubscription;
};

} // namespace cuebright
