#pragma once

#include "foundation/Signal.h"

#include <QAccessibleWidget>

#include <vector>

namespace cuebright {

class CardArea;

/// The card as a screen reader sees it: one element for each block, and one for each link in it.
class CardAccessible final : public QAccessibleWidget {
public:
    explicit CardAccessible(CardArea& area);
    ~CardAccessible() override;

    /// From now on card areas have this interface.
    static void install();
    /// The keyboard has come to a link of the card.
    static void focusMoved(CardArea& area);

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;

private:
    void takeChangedContent();
    void forgetChildren();

    CardArea& m_area;
    mutable std::vector<QAccessible::Id> m_children; ///< made when asked for
    Subscription m_contentSubscription;
};

} // namespace cuebright
