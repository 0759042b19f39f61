#pragma once

#include "foundation/Signal.h"
#include "foundation/Uuid.h"
#include "platform/MainQueue.h"
#include "ui/base/UiContext.h"
#include "ui/card/CardLayout.h"
#include "ui/card/CardTransition.h"

#include <QAbstractScrollArea>

#include <cstdint>
#include <optional>

namespace cuebright {

/// The active card, rendered, in a scroll area. Links open by click or, reached by Tab, by Return; a double click opens
/// the editor.
class CardArea final : public QAbstractScrollArea {
public:
    enum class Page { Up, Down };
    enum class Content { Same, Stale };

    CardArea(const UiContext& context, QWidget* parent);

    /// Shows what the store holds now: another card with a transition, if the change carries an animation, and from its
    /// top; the same card where it is. `Content::Same` promises that no card, size or colour has changed.
    void refresh(Content content, const std::optional<Animation>& animation);

    /// Scrolls by what fits on the screen; false where there is nothing left to scroll.
    bool scrollPage(Page page);

    /// Null without an active card.
    [[nodiscard]] CardLayout* cardLayout() { return m_layout ? &*m_layout : nullptr; }
    /// A rectangle of the card on the viewport.
    [[nodiscard]] QRect toViewport(const QRectF& rect) const;
    /// The link that Return opens.
    [[nodiscard]] std::optional<CardLayout::Link> focusedLink() const;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, 0}; }

    /// Other blocks are on show, or the same ones at other places.
    Signal<> contentChanged;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void focusOutEvent(QFocusEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    /// What makes a rendered card another one.
    struct Key {
        Uuid transitionId;
        std::int64_t deckIndex = 0;
        std::int64_t cardIndex = 0;
        std::optional<Uuid> cardId;

        bool operator==(const Key&) const = default;
    };

    [[nodiscard]] Key currentKey() const;
    void layOut();
    void forgetLinks();
    void updateScrollRange();
    void continueLayout();
    void drawCard(QPainter& painter, const QRect& area);
    void drawFrame(QPainter& painter);
    void drawFocus(QPainter& painter);
    [[nodiscard]] QPixmap pictureOfFrame();
    [[nodiscard]] std::optional<std::string> linkAt(const QPoint& position) const;

    const UiContext& m_context;
    std::optional<CardLayout> m_layout;
    std::optional<Key> m_key;
    CardTransition m_transition;
    std::optional<std::size_t> m_focusedLink; ///< among the layout's links
    std::optional<std::string> m_pressedLink;
    bool m_isSized = false; ///< before it is, laying out would be for nothing
    PendingTask m_nextLayoutSlice;
};

} // namespace cuebright
