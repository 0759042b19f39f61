#include "ui/card/BlockAccessible.h"

#include "platform/qt/TextConversion.h"
#include "ui/base/LinkOpener.h"
#include "ui/card/CardArea.h"

#include <QAccessible>

namespace cuebright {

namespace {

QRect onScreen(const CardArea& area, const QRectF& rect)
{
    const auto inViewport = area.toViewport(rect);
    return {area.viewport()->mapToGlobal(inViewport.topLeft()), inViewport.size()};
}

/// A link of a block, which owns it.
class LinkAccessible final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    LinkAccessible(const CardArea& area, const BlockAccessible& block, const CardLayout::Link& link)
        : m_area(area)
        , m_block(block)
        , m_link(link)
    {
    }

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return const_cast<BlockAccessible*>(&m_block); }
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name       ? m_link.text
            : kind == QAccessible::Description ? toQString(m_link.target)
                                               : QString();
    }
    void setText(QAccessible::Text, const QString&) override { }
    QRect rect() const override { return onScreen(m_area, m_link.rect); }
    QAccessible::Role role() const override { return QAccessible::Link; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.linked = true;
        state.focusable = true;
        const auto focused = m_area.focusedLink();
        state.focused = focused && focused->block == m_link.block && focused->rect == m_link.rect;
        state.disabled = !isOpenableLink(m_link.target);
        state.invisible = !m_area.isVisible();
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override
    {
        if (action == pressAction())
            openLink(m_link.target);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    const CardArea& m_area;
    const BlockAccessible& m_block;
    const CardLayout::Link& m_link;
};

} // namespace

QString accessibleLabel(const CardLayout& layout, std::size_t block)
{
    const auto& content = layout.blocks()[block];
    if (content.kind == Block::Kind::NumberedItem)
        return QString::number(content.number) + QStringLiteral(". ") + toQString(content.text);
    if (content.kind == Block::Kind::Blockquote)
        return QStringLiteral("Quote: ") + toQString(content.text);
    return layout.blockText(block);
}

BlockAccessible::BlockAccessible(CardArea& area, std::size_t block)
    : m_area(area)
    , m_block(block)
    , m_links(area.cardLayout()->linksIn(block))
{
}

CardLayout* BlockAccessible::layout() const
{
    const auto shown = m_area.cardLayout();
    return shown && m_block < shown->blocks().size() ? shown : nullptr;
}

QAccessibleInterface* BlockAccessible::parent() const { return QAccessible::queryAccessibleInterface(&m_area); }

QAccessibleInterface* BlockAccessible::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    return m_children.at(
        index, [&] { return new LinkAccessible(m_area, *this, m_links[static_cast<std::size_t>(index)]); });
}

QString BlockAccessible::text(QAccessible::Text kind) const
{
    const auto shown = layout();
    return kind == QAccessible::Name && shown ? accessibleLabel(*shown, m_block) : QString();
}

QRect BlockAccessible::rect() const
{
    const auto shown = layout();
    return shown ? onScreen(m_area, shown->blockRect(m_block)) : QRect();
}

QAccessible::Role BlockAccessible::role() const
{
    const auto shown = layout();
    const bool isHeading = shown && shown->blocks()[m_block].kind == Block::Kind::Heading;
    return isHeading ? QAccessible::Heading : QAccessible::Paragraph;
}

QAccessible::State BlockAccessible::state() const
{
    QAccessible::State state;
    state.readOnly = true;
    state.multiLine = true;
    state.invisible = !m_area.isVisible();
    state.offscreen = !m_area.viewport()->visibleRegion().intersects(
        QRect(m_area.viewport()->mapFromGlobal(rect().topLeft()), rect().size()));
    return state;
}

} // namespace cuebright
