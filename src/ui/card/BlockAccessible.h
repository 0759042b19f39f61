#pragma once

#include "ui/accessibility/AccessibleChildren.h"
#include "ui/card/CardLayout.h"

#include <QAccessibleInterface>

#include <vector>

namespace cuebright {

class CardArea;

/// What a screen reader says for a block: its text, after its number or "Quote: " where it has one.
[[nodiscard]] QString accessibleLabel(const CardLayout& layout, std::size_t block);

/// One block of the card that `area` shows; its links are its children. Replaced when the content changes.
class BlockAccessible final : public QAccessibleInterface {
public:
    BlockAccessible(CardArea& area, std::size_t block);

    [[nodiscard]] bool isValid() const override { return layout() != nullptr; }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] int childCount() const override { return static_cast<int>(m_links.size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        return m_children.indexOf(child);
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override { return childContaining(*this, x, y); }
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override { }
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;

private:
    /// Null if the area no longer has this block.
    [[nodiscard]] CardLayout* layout() const;

    CardArea& m_area;
    std::size_t m_block;
    std::vector<CardLayout::Link> m_links;
    mutable AccessibleChildren m_children;
};

} // namespace cuebright
