#pragma once

#include "ui/card/CardLayout.h"

#include <QAccessibleInterface>

#include <vector>

namespace cuebright {

class CardArea;

/// What a screen reader says for a block: its text, led by the number or by "Quote: " where there is one.
[[nodiscard]] QString accessibleLabel(const CardLayout& layout, std::size_t block);

/// One block of the card on show. Invalid once the card has changed.
class BlockAccessible final : public QAccessibleInterface {
public:
    BlockAccessible(CardArea& area, std::size_t block);
    ~BlockAccessible() override;

    [[nodiscard]] bool isValid() const override { return layout() != nullptr; }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] int childCount() const override { return static_cast<int>(m_links.size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override { }
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;

private:
    /// Null where the card on show has no such block any more.
    [[nodiscard]] CardLayout* layout() const;

    CardArea& m_area;
    std::size_t m_block;
    std::vector<QAccessible::Id> m_links;
};

} // namespace cuebright
