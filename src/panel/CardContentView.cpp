#include "panel/CardContentView.h"

#include "panel/CardArea.h"
#include "panel/FooterView.h"
#include "panel/HeaderView.h"
#include "panel/MarkdownEditor.h"
#include "platform/Accessibility.h"
#include "platform/MainQueue.h"
#include "store/CardStore.h"
#include "theme/QtColors.h"

#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace cuebright {

namespace {

constexpr int kColumnWidth = 600;
constexpr int kMinSidePadding = 40;
constexpr int kTopPadding = 40;
constexpr int kBottomPadding = 24;
constexpr int kGap = 20; ///< below the header and below the rule

/// One line across the column.
class Rule final : public QWidget {
public:
    Rule(const PanelContext& context, QWidget* parent)
        : QWidget(parent)
        , m_context(context)
    {
        setFixedHeight(1);
    }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), toQColor(m_context.colors().sep())); }

private:
    const PanelContext& m_context;
};

} // namespace

CardContentView::CardContentView(const PanelContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_header(new HeaderView(context, this))
    , m_cardArea(new CardArea(context, this))
    , m_editor(new MarkdownEditor(context, this))
    , m_rule(new Rule(context, this))
    , m_footer(new FooterView(context, this))
{
    const auto column = new QVBoxLayout(this);
    column->setSpacing(0);
    column->addWidget(m_header);
    column->addSpacing(kGap);
    column->addWidget(m_cardArea, 1);
    column->addWidget(m_editor, 1);
    column->addWidget(m_rule);
    column->addSpacing(kGap);
    column->addWidget(m_footer);
    m_editor->hide();
    setFocusProxy(m_cardArea);
    refresh();

    m_storeSubscription = context.store.willChange.subscribe([this](const Change& change) { takeNotice(change); });
    m_appearanceSubscription = context.platform.appearance.changed.subscribe([this] { scheduleRefresh(); });
    m_accessibilitySubscription = context.platform.accessibility.changed.subscribe([this] { scheduleRefresh(); });
}

int CardContentView::columnPadding(int width) { return std::max((width - kColumnWidth) / 2, kMinSidePadding); }

void CardContentView::takeNotice(const Change& change)
{
    if (change.property == Change::Property::IsEditing && !m_context.store.isEditing())
        m_editBegins = true;
    scheduleRefresh();
}

void CardContentView::scheduleRefresh()
{
    if (m_refreshScheduled)
        return;
    m_refreshScheduled = true;
    m_context.platform.mainQueue.post(m_weakTarget.guard([this] {
        m_refreshScheduled = false;
        refresh();
    }));
}

void CardContentView::refresh()
{
    m_header->refresh();
    m_footer->refresh();
    m_editor->refreshStyle();
    if (m_context.store.isEditing() && std::exchange(m_editBegins, false))
        m_editor->open();
    showEditor(m_context.store.isEditing());
    if (!m_showsEditor)
        m_cardArea->refresh();
    update();
}

void CardContentView::showEditor(bool isEditing)
{
    if (isEditing == m_showsEditor)
        return;
    m_showsEditor = isEditing;
    m_cardArea->setVisible(!isEditing);
    m_editor->setVisible(isEditing);
    setFocusProxy(isEditing ? static_cast<QWidget*>(m_editor) : m_cardArea);
    setFocus();
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
