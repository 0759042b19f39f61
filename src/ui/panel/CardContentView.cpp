#include "ui/panel/CardContentView.h"

#include "foundation/NotificationCenter.h"
#include "platform/Accessibility.h"
#include "platform/CaptureExclusion.h"
#include "platform/MainQueue.h"
#include "platform/qt/QtColors.h"
#include "store/CardStore.h"
#include "ui/animation/FadingSnapshot.h"
#include "ui/base/Notifications.h"
#include "ui/editor/MarkdownEditor.h"
#include "ui/editor/MarkdownToolbar.h"
#include "ui/editor/TextViewManager.h"
#include "ui/panel/FooterView.h"
#include "ui/panel/HeaderView.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <cassert>
#include <utility>

namespace cuebright {

namespace {

constexpr int kColumnWidth = 600;
constexpr int kMinSidePadding = 40;
constexpr int kTopPadding = 40;
constexpr int kBottomPadding = 24;
constexpr int kToolbarGap = 12; ///< below the editor's toolbar
constexpr int kGap = 20; ///< below the header and below the rule

/// A horizontal line.
class Rule final : public QWidget {
public:
    Rule(const UiContext& context, QWidget* parent)
        : QWidget(parent)
        , m_context(context)
    {
        setFixedHeight(1);
    }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), toQColor(m_context.colors().sep())); }

private:
    const UiContext& m_context;
};

} // namespace

CardContentView::CardContentView(const UiContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_timerManager(context.platform.clock, context.platform.mainQueue)
    , m_column(new QVBoxLayout(this))
    , m_editorManager(new TextViewManager(this))
    , m_header(new HeaderView(context, this))
    , m_cardArea(new CardArea(context, this))
    , m_rule(new Rule(context, this))
    , m_footer(new FooterView(context, m_timerManager, this))
    , m_refresh(context.platform.mainQueue, [this] { refresh(); })
{
    m_column->setSpacing(0);
    m_column->addWidget(m_header);
    m_column->addSpacing(kGap);
    m_column->addWidget(m_cardArea, 1);
    m_column->addWidget(m_rule);
    m_column->addSpacing(kGap);
    m_column->addWidget(m_footer);
    connect(m_footer, &FooterView::focusLost, this, &CardContentView::takeFocus);
    refresh();

    m_storeSubscription =
        context.store.willChange.subscribe([this](const Change& change) { onStoreWillChange(change); });
    m_absenceSubscription =
        context.notifications.observe(kReturnAfterAbsenceNotification, [this] { m_header->pulse(); });
    m_overwriteSubscription =
        context.notifications.observe(kToggleOverwriteNotification, [this] { toggleOverwrite(); });
    m_appearanceSubscription = context.platform.appearance.changed.subscribe([this] { onThemeChanged(); });
    m_accessibilitySubscription = context.platform.accessibility.changed.subscribe([this] { onThemeChanged(); });
    m_exclusionSubscription = context.desktop.captureExclusion.changed.subscribe([this] { m_refresh.request(); });
}

/// Made for the first edit, to keep the first frame fast.
void CardContentView::makeEditView()
{
    m_editView = new QWidget(this);
    m_editView->hide();
    const auto toolbar = new MarkdownToolbar(m_context, *m_editorManager, m_editView);
    m_editor = new MarkdownEditor(m_context, m_editView);
    m_editor->setManager(*m_editorManager);
    const auto editColumn = new QVBoxLayout(m_editView);
    editColumn->setContentsMargins(0, 0, 0, 0);
    editColumn->setSpacing(kToolbarGap);
    editColumn->addWidget(toolbar);
    editColumn->addWidget(m_editor, 1);
    m_column->insertWidget(m_column->indexOf(m_cardArea) + 1, m_editView, 1);

    // Screen readers and Tab reach it before the footer.
    m_editView->stackUnder(m_rule);
    QWidget* before = m_cardArea;
    for (const auto button : toolbar->findChildren<QAbstractButton*>()) {
        setTabOrder(before, button);
        before = button;
    }
    setTabOrder(before, m_editor);
}

int CardContentView::columnPadding(int width) { return std::max((width - kColumnWidth + 1) / 2, kMinSidePadding); }

void CardContentView::onStoreWillChange(const Change& change)
{
    using enum Change::Property;
    if (change.isOneOf({NavigationDirection, IsDeckSwitch, Theme, Opacity}))
        return; // not shown here, or only through `Appearance`
    if (change.property == IsEditing) {
        m_editAnimation = change.animation;
        m_editBegins |= !m_context.store.isEditing();
    } else if (change.animation) {
        m_cardAnimation = change.animation;
    }
    if (change.isOneOf({Decks, ActiveDeckIndex, ActiveCardIndex, DeckTransitionID, FontSize}))
        m_cardContent = CardArea::Content::Stale;
    m_refresh.request();
}

void CardContentView::onThemeChanged()
{
    m_cardContent = CardArea::Content::Stale;
    m_refresh.request();
}

void CardContentView::toggleOverwrite()
{
    m_editorManager->setOverwriteMode(!m_editorManager->isOverwriteMode());
    m_context.store.showFeedback(m_editorManager->isOverwriteMode() ? "Overwrite" : "Insert");
}

void CardContentView::refresh()
{
    const bool isEditing = m_context.store.isEditing();
    const auto editAnimation = std::exchange(m_editAnimation, std::nullopt);
    if (isEditing != m_showsEditor && editAnimation)
        fadeOutWhatIsShown(*editAnimation); // before anything changes
    m_header->refresh();
    m_footer->refresh();
    if (isEditing && !m_editor)
        makeEditView();
    const auto content = std::exchange(m_cardContent, CardArea::Content::Same);
    if (m_editor) {
        if (content == CardArea::Content::Stale)
            m_editor->refreshStyle();
        m_editor->refreshText();
        if (isEditing && std::exchange(m_editBegins, false))
            m_editor->open();
    }
    const auto cardAnimation = std::exchange(m_cardAnimation, std::nullopt);
    const bool staysWithTheCard = !m_showsEditor && !isEditing;
    m_cardArea->refresh(content, staysWithTheCard ? cardAnimation : std::nullopt);
    showEditor(isEditing);
    update();
}

QWidget& CardContentView::shownContent() const
{
    return m_showsEditor ? *m_editView : static_cast<QWidget&>(*m_cardArea);
}

void CardContentView::fadeOutWhatIsShown(const Animation& animation)
{
    const auto area = shownContent().geometry();
    if (isVisible())
        new FadingSnapshot(grab(area), area, animation, this);
}

void CardContentView::showEditor(bool isEditing)
{
    if (isEditing == m_showsEditor)
        return;
    assert(m_editView); // made before the first edit is shown
    shownContent().hide();
    m_showsEditor = isEditing;
    shownContent().show();
    takeFocus();
}

void CardContentView::takeFocus()
{
    if (m_showsEditor)
        m_editor->setFocus();
    else
        m_cardArea->setFocus();
}

/// Presentation remotes send page keys: they scroll the card, then step through the deck.
void CardContentView::keyPressEvent(QKeyEvent* event)
{
    const bool isPageKey = event->key() == Qt::Key_PageDown || event->key() == Qt::Key_PageUp;
    if (!isPageKey || event->modifiers() != Qt::NoModifier || m_showsEditor)
        return QWidget::keyPressEvent(event);
    const bool goesOn = event->key() == Qt::Key_PageDown;
    if (m_cardArea->scrollPage(goesOn ? CardArea::Page::Down : CardArea::Page::Up))
        return;
    if (goesOn)
        m_context.store.nextCard();
    else
        m_context.store.prevCard();
}

void CardContentView::paintEvent(QPaintEvent* event)
{
    QPainter(this).fillRect(event->rect(), toQColor(m_context.colors().warmBg()));
}

void CardContentView::resizeEvent(QResizeEvent*)
{
    const int padding = columnPadding(width());
    layout()->setContentsMargins(padding, kTopPadding, padding, kBottomPadding);
}

} // namespace cuebright
