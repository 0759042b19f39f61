#include "panel/FooterView.h"

#include "panel/ChromeButton.h"
#include "panel/FooterContent.h"
#include "panel/PanelLabel.h"
#include "panel/TextConversion.h"
#include "store/CardStore.h"
#include "theme/Fonts.h"

#include <QHBoxLayout>

namespace cuebright {

namespace {

constexpr int kItemGap = 12;
constexpr double kFontSize = 11;

void showText(PanelLabel* label, const std::optional<std::string>& text)
{
    if (text)
        label->setText(toQString(*text));
    label->setVisible(text.has_value());
}

} // namespace

FooterView::FooterView(const PanelContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
{
    using enum PanelLabel::Ink;
    using enum PanelLabel::WhenNarrow;
    const auto messageFont = letterSpaced(systemFont(kFontSize, QFont::Medium), 0.5);
    const auto row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kItemGap);
    const auto addLabel = [&](const QFont& font, PanelLabel::Ink ink, PanelLabel::WhenNarrow whenNarrow) {
        const auto label = new PanelLabel(context, font, ink, whenNarrow, this);
        row->addWidget(label);
        return label;
    };
    m_position = addLabel(letterSpaced(monospacedFont(kFontSize, QFont::DemiBold), 1.8), Muted, Keep);
    m_wordCount = addLabel(messageFont, Muted, Elide);
    m_error = addLabel(monospacedFont(kFontSize, QFont::Medium), Red, Elide);
    m_feedback = addLabel(messageFont, Muted, Elide);
    row->addStretch(1);

    auto& store = context.store;
    m_edit = addButton(QStringLiteral("⌘E  EDIT"), "Edit card", "Press Command E to edit");
    m_previous = addButton(QStringLiteral("←"), "Previous card", "Or press left arrow");
    m_next = addButton(QStringLiteral("→"), "Next card", "Or press right arrow");
    m_cancel = addButton(QStringLiteral("CANCEL"), "Cancel editing", "Discards changes");
    m_done = addButton(QStringLiteral("DONE"), "Save card", "Saves changes");
    connect(m_edit, &QAbstractButton::clicked, this, [&store] { store.beginEditing(); });
    connect(m_previous, &QAbstractButton::clicked, this, [&store] { store.prevCard(); });
    connect(m_next, &QAbstractButton::clicked, this, [&store] { store.nextCard(); });
    connect(m_cancel, &QAbstractButton::clicked, this, [&store] { store.cancelEdit(); });
    connect(m_done, &QAbstractButton::clicked, this, [&store] { store.saveEdit(); });
}

ChromeButton* FooterView::addButton(const QString& text, const char* accessibleName, const char* hint)
{
    const auto kind = text.size() == 1 ? ChromeButton::Kind::Arrow : ChromeButton::Kind::Title;
    const auto button = new ChromeButton(m_context, kind, text, this);
    button->setAccessibleName(QLatin1String(accessibleName));
    button->setAccessibleDescription(QLatin1String(hint));
    layout()->addWidget(button);
    return button;
}

void FooterView::refresh()
{
    const auto content = footerContent(m_context.store);
    m_position->setText(toQString(content.position));
    m_position->setAccessibleName(toQString(content.positionAccessibleName));
    showText(m_wordCount, content.wordCount);
    showText(m_error, content.error);
    showText(m_feedback, content.feedback);
    m_previous->setEnabled(content.canGoPrev);
    m_next->setEnabled(content.canGoNext);
    for (const auto button : {m_edit, m_previous, m_next})
        button->setVisible(!content.isEditing);
    for (const auto button : {m_cancel, m_done})
        button->setVisible(content.isEditing);
}

} // namespace cuebright
