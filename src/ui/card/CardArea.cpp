#include "ui/card/CardArea.h"

#include "markdown/CardParser.h"
#include "store/CardStore.h"
#include "ui/card/CardAccessible.h"
#include "ui/widgets/FocusRing.h"
#include "ui/widgets/SlimScrollBar.h"

#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <utility>

namespace cuebright {

namespace {

constexpr int kLineStep = 24;
constexpr double kLinkCornerRadius = 3;
constexpr std::chrono::microseconds kLayoutSlice {4000}; ///< between two events

} // namespace

CardArea::CardArea(const UiContext& context, QWidget* parent)
    : QAbstractScrollArea(parent)
    , m_context(context)
    , m_transition([this] { viewport()->update(); })
{
    CardAccessible::install();
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("Card content"));
    viewport()->setAutoFillBackground(false);
    viewport()->setMouseTracking(true);
    verticalScrollBar()->setSingleStep(kLineStep);
    makeSlim(*verticalScrollBar());
    new FocusRing(context, this, FocusRing::When::ReachedByTab);
}

CardArea::Key CardArea::currentKey() const
{
    const auto& store = m_context.store;
    const auto card = store.activeCard();
    return {store.deckTransitionID(), store.activeDeckIndex(), store.activeCardIndex(),
        card ? std::optional(card->id) : std::nullopt};
}

void CardArea::refresh(Content content, const std::optional<Animation>& animation)
{
    const auto key = currentKey();
    const bool isOther = m_key != key;
    if (content == Content::Same && !isOther)
        return;
    if (isOther && m_key && animation && isVisible()) {
        const auto& store = m_context.store;
        m_transition.start(
            CardTransition::kindFor(store.isDeckSwitch(), store.navigationDirection()), grabFrame(), *animation);
    } else if (isOther) {
        m_transition.stop();
    }
    m_key = key;
    if (isOther)
        verticalScrollBar()->setValue(0); // first, or the new card would be laid out as far as the old one was scrolled
    layOut();
    viewport()->update();
    contentChanged.notify();
}

void CardArea::layOut()
{
    if (!m_isSized)
        return;
    resetLinks();
    const auto card = m_context.store.activeCard();
    if (card)
        m_layout.emplace(
            parseMarkdown(card->content), m_context.store.fontSize(), m_context.colors(), viewport()->width());
    else
        m_layout.reset();
    updateScrollRange();
    continueLayout();
}

void CardArea::resetLinks()
{
    m_focusedLink.reset();
    m_pressedLink.reset();
}

void CardArea::updateScrollRange()
{
    const auto viewportHeight = viewport()->height();
    if (m_layout)
        m_layout->layOutTo(verticalScrollBar()->value() + viewportHeight);
    const auto height = m_layout ? static_cast<int>(std::ceil(std::min(m_layout->height(), 1e9))) : 0;
    verticalScrollBar()->setPageStep(viewportHeight);
    verticalScrollBar()->setRange(0, std::max(height - viewportHeight, 0));
}

/// Lays out what is below the viewport in slices, so that the scroll bar becomes exact without delaying input.
void CardArea::continueLayout()
{
    m_nextLayoutSlice.cancel();
    if (!m_layout || m_layout->isComplete())
        return;
    m_nextLayoutSlice = m_context.platform.mainQueue.after(Seconds(0), [this] { // once no event is queued
        m_layout->layOutFor(kLayoutSlice);
        updateScrollRange();
        continueLayout();
    });
}

bool CardArea::scrollPage(Page page)
{
    const auto bar = verticalScrollBar();
    const int before = bar->value();
    bar->triggerAction(page == Page::Down ? QAbstractSlider::SliderPageStepAdd : QAbstractSlider::SliderPageStepSub);
    return bar->value() != before;
}

QRect CardArea::toViewport(const QRectF& rect) const
{
    return rect.translated(0, -verticalScrollBar()->value()).toAlignedRect();
}

void CardArea::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    if (m_transition.isRunning())
        drawFrame(painter);
    else
        drawCard(painter, event->rect());
}

void CardArea::drawCard(QPainter& painter, const QRect& area)
{
    if (!m_layout)
        return;
    const int scrolled = verticalScrollBar()->value();
    painter.translate(0, -scrolled);
    m_layout->draw(painter, QRectF(area.translated(0, scrolled)));
    drawFocus(painter);
}

void CardArea::drawFrame(QPainter& painter)
{
    const auto area = viewport()->rect();
    if (!m_transition.isRunning())
        return drawCard(painter, area);
    m_transition.draw(painter, area, [&] { drawCard(painter, area); });
}

std::optional<CardLayout::Link> CardArea::focusedLink() const
{
    if (!hasFocus() || !m_focusedLink || !m_layout)
        return std::nullopt;
    return m_layout->links().at(*m_focusedLink);
}

void CardArea::drawFocus(QPainter& painter)
{
    if (const auto link = focusedLink())
        drawFocusRing(painter, link->rect.adjusted(-3, -1, 3, 1), kLinkCornerRadius, m_context.colors());
}

QPixmap CardArea::grabFrame()
{
    const double scale = devicePixelRatioF();
    QPixmap picture(viewport()->size() * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setFont(font());
    drawFrame(painter);
    return picture;
}

void CardArea::resizeEvent(QResizeEvent*)
{
    if (!std::exchange(m_isSized, true))
        return layOut();
    // Also when the scroll bar appears or disappears with another card, whose transition then continues.
    if (m_layout && m_layout->width() != viewport()->width()) {
        resetLinks();
        m_layout->setWidth(viewport()->width());
        contentChanged.notify();
    }
    updateScrollRange();
    continueLayout();
}

void CardArea::scrollContentsBy(int, int)
{
    updateScrollRange();
    viewport()->update();
}

} // namespace cuebright
