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

    /// Shows the store's active card. Another card than before starts at its top, with a transition if there is an
    /// `animation`; the same card stays where it is. `Content::Same`: no text, size or colour has changed.
    void refresh(Content content, const std::optional<Animation>& animation);

    /// False if it is at the end already.
    bool scrollPage(Page page);

    /// Null without an active card.
    [[nodiscard]] CardLayout* cardLayout() { return m_layout ? &*m_layout : nullptr; }
    /// From the card's coordinates to the viewport's.
    [[nodiscard]] QRect toViewport(const QRectF& rect) const;
    /// The link with keyboard focus.
    [[nodiscard]] std::optional<CardLayout::Link> focusedLink() const;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, 0}; }

    /// The blocks or their places have changed.
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
    /// Identifies what is shown; another key is another card.
    struct Key {
        Uuid transitionId;
        std::int64_t deckIndex = 0;
        std::int64_t cardIndex = 0;
        std::optional<Uuid> cardId;

        bool operator==(const Key&) const = default;
    };

    [[nodiscard]] Key currentKey() const;
    void layOut();
    void resetLinks();
    void updateScrollRange();
    void continueLayout();
    void drawCard(QPainter& painter, const QRect& area);
    void drawFrame(QPainter& painter);
    void drawFocus(QPainter& painter);
    [[nodiscard]] QPixmap grabFrame();
    [[nodiscard]] std::optional<std::string> linkAt(const QPoint& position) const;

    const UiContext& m_context;
    std::optional<CardLayout> m_layout;
    std::optional<Key> m_key;
    CardTransition m_transition;
    std::optional<std::size_t> m_focusedLink; ///< among the layout's links
    std::optional<std::string> m_pressedLink;
    bool m_isSized = false; ///< nothing is laid out before the first resize event
    PendingTask m_nextLayoutSlice;
};

} // namespace cuebright
