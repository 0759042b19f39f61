#include "ui/panel/FooterView.h"

#include "platform/qt/TextConversion.h"
#include "store/CardStore.h"
#include "ui/base/Fonts.h"
#include "ui/panel/ErrorNotice.h"
#include "ui/panel/TimerView.h"
#include "ui/widgets/ChromeButton.h"
#include "ui/widgets/Label.h"

#include <QEvent>

#include <cmath>
#include <utility>

namespace cuebright {

namespace {

constexpr int kHeight = 28;
constexpr double kFontSize = 11;
constexpr int kArrowSize = 14;
constexpr Seconds kFadeTime {0.2};

int wantedWidth(const QWidget* widget) { return widget->sizeHint().width(); }

} // namespace

FooterView::FooterView(const UiContext& context, TimerManager& timer, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_transition(1, kFadeTime, [this] { layOut(); })
{
    using enum Label::WhenNarrow;
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const auto messageFont = letterSpaced(systemFont(kFontSize, QFont::Medium), 0.5);
    m_position =
        new Label(context, letterSpaced(monospacedFont(kFontSize, QFont::DemiBold), 1.8), ColorRole::Muted, Keep, this);
    m_wordCount = itemFor(new Label(context, messageFont, ColorRole::Muted, Elide, this));
    m_timer = {new TimerView(context, timer, this), nullptr, true, 1, 1};
    m_errorNotice = new ErrorNotice(context, this);
    m_error = {m_errorNotice, [this](double opacity) { m_errorNotice->setInkOpacity(opacity); }};
    m_feedbackLabel = new Label(context, messageFont, ColorRole::Muted, Elide, this);
    m_feedback = itemFor(m_feedbackLabel);
    for (const auto item : {&m_wordCount, &m_error, &m_feedback})
        item->widget->hide();

    auto& store = context.store;
    m_edit = addTitle(QStringLiteral("⌘E  EDIT"), "Edit card", "Press Command E to edit");
    m_previous = addArrow(Icon::ArrowLeft, "Previous card", "Or press left arrow");
    m_next = addArrow(Icon::ArrowRight, "Next card", "Or press right arrow");
    m_cancel = addTitle(QStringLiteral("CANCEL"), "Cancel editing", "Discards changes");
    m_done = addTitle(QStringLiteral("DONE"), "Save card", "Saves changes");
    connect(m_edit, &QAbstractButton::clicked, this, [&store] { store.beginEditing(); });
    connect(m_previous, &QAbstractButton::clicked, this, [&store] { store.prevCard(); });
    connect(m_next, &QAbstractButton::clicked, this, [&store] { store.nextCard(); });
    connect(m_cancel, &QAbstractButton::clicked, this, [&store] { store.cancelEdit(); });
    connect(m_done, &QAbstractButton::clicked, this, [&store] { store.saveEdit(); });
}

FooterView::Item FooterView::itemFor(Label* label) const
{
    return {label, [label](double opacity) { label->setInkOpacity(opacity); }};
}

ChromeButton* FooterView::addTitle(const QString& text, const char* accessibleName, const char* hint)
{
    const auto button = new ChromeButton(m_context, text, this);
    button->setAccessibleName(QLatin1String(accessibleName));
    button->setAccessibleDescription(QLatin1String(hint));
    return button;
}

ChromeButton* FooterView::addArrow(Icon icon, const char* name, const char* hint)
{
    const auto button = new ChromeButton(m_context, icon, kArrowSize, QLatin1String(name), this);
    button->setAccessibleDescription(QLatin1String(hint));
    return button;
}

void FooterView::refresh()
{
    const auto former = std::exchange(m_content, footerContent(m_context.store));
    if (former.positionAccessibleName != m_content.positionAccessibleName) {
        m_position->setText(toQString(m_content.position));
        m_position->setAccessibleName(toQString(m_content.positionAccessibleName));
        if (!former.positionAccessibleName.empty())
            m_position->announce();
    }
    // An item keeps its text while it fades out.
    if (m_content.wordCount)
        static_cast<Label*>(m_wordCount.widget)->setText(toQString(*m_content.wordCount));
    if (m_content.error)
        m_errorNotice->setText(toQString(*m_content.error));
    if (m_content.feedback && former.feedback)
        m_feedbackLabel->crossFadeTo(toQString(*m_content.feedback), ColorRole::Muted, kFadeTime);
    else if (m_content.feedback)
        m_feedbackLabel->setText(toQString(*m_content.feedback));
    // Otherwise Qt moves the focus to the other arrow, and the next press would go back.
    if ((m_previous->hasFocus() && !m_content.canGoPrev) || (m_next->hasFocus() && !m_content.canGoNext))
        Q_EMIT focusLost();
    m_previous->setEnabled(m_content.canGoPrev);
    m_next->setEnabled(m_content.canGoNext);
    for (const auto button : {m_edit, m_previous, m_next})
        button->setVisible(!m_content.isEditing);
    for (const auto button : {m_cancel, m_done})
        button->setVisible(m_content.isEditing);

    if (former.wordCount.has_value() != m_content.wordCount.has_value() || former.error != m_content.error
        || former.feedback != m_content.feedback)
        beginTransition();
    else if (former != m_content)
        layOut();

    if (m_content.error && m_content.error != former.error)
        m_errorNotice->announce();
    if (m_content.feedback && m_content.feedback != former.feedback)
        m_feedbackLabel->announce();
}

void FooterView::beginTransition()
{
    m_wordCount.isPresent = m_content.wordCount.has_value();
    m_error.isPresent = m_content.error.has_value();
    m_feedback.isPresent = m_content.feedback.has_value();
    const auto places = footerPlaces(wantedWidths(), width());
    const std::pair<Item*, int> items[] = {{&m_wordCount, places.wordCount.x}, {&m_timer, places.timer.x},
        {&m_error, places.error.x}, {&m_feedback, places.feedback.x}};
    for (const auto& [item, x] : items) {
        const bool arrives = item->isPresent && item->widget->isHidden();
        item->formerX = arrives ? x : item->x;
        item->formerOpacity = item->opacity;
        if (arrives)
            item->widget->show();
    }
    m_transition.moveTo(0, AnimatedValue::Motion::AtOnce);
    m_transition.moveTo(1, isVisible() ? AnimatedValue::Motion::Animated : AnimatedValue::Motion::AtOnce);
}

std::vector<ChromeButton*> FooterView::shownButtons() const
{
    if (m_content.isEditing)
        return {m_cancel, m_done};
    return {m_edit, m_previous, m_next};
}

FooterWidths FooterView::wantedWidths() const
{
    const auto widthOf = [](const Item& item) { return item.isPresent ? wantedWidth(item.widget) : 0; };
    int buttons = -kFooterGap;
    for (const auto button : shownButtons())
        buttons += wantedWidth(button) + kFooterGap;
    return {wantedWidth(m_position), widthOf(m_wordCount), widthOf(m_timer), widthOf(m_error),
        m_errorNotice->minimumSizeHint().width(), widthOf(m_feedback), buttons};
}

void FooterView::layOut()
{
    const auto places = footerPlaces(wantedWidths(), width());
    const int labelHeight = m_position->sizeHint().height();
    m_position->setGeometry(places.position.x, (height() - labelHeight) / 2, places.position.width, labelHeight);
    place(m_wordCount, places.wordCount);
    place(m_timer, places.timer);
    place(m_error, places.error);
    place(m_feedback, places.feedback);
    placeButtons(places.buttons.x);
}

void FooterView::place(Item& item, const FooterPlaces::Place& target)
{
    const double progress = m_transition.value();
    item.opacity = std::lerp(item.formerOpacity, item.isPresent ? 1 : 0, progress);
    if (item.setOpacity)
        item.setOpacity(item.opacity);
    if (!item.isPresent) {
        if (progress == 1)
            item.widget->hide();
        return;
    }
    item.x = std::lerp(item.formerX, target.x, progress);
    const int itemHeight = item.widget->sizeHint().height();
    item.widget->setGeometry(
        static_cast<int>(std::lround(item.x)), (height() - itemHeight) / 2, target.width, itemHeight);
}

void FooterView::placeButtons(int x)
{
    for (const auto button : shownButtons()) {
        button->setGeometry(QRect(QPoint(x, (height() - button->sizeHint().height()) / 2), button->sizeHint()));
        x += button->width() + kFooterGap;
    }
}

QSize FooterView::sizeHint() const { return {0, kHeight}; }

bool FooterView::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest)
        layOut();
    return QWidget::event(event);
}

void FooterView::resizeEvent(QResizeEvent*) { layOut(); }

} // namespace cuebright
