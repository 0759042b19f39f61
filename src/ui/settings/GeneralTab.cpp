#include "ui/settings/GeneralTab.h"

#include "platform/qt/QtColors.h"
#include "ui/base/Fonts.h"
#include "ui/settings/SettingsSection.h"
#include "ui/settings/ShortcutReference.h"
#include "ui/widgets/FocusRing.h"
#include "ui/widgets/Label.h"
#include "ui/widgets/SymbolIcon.h"

#include <QHBoxLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace cuebright {

namespace {

constexpr int kBelowDescription = 8;

/// One line of the shortcut reference: the action on the left, its keys on the right.
class ShortcutRow final : public QWidget {
public:
    ShortcutRow(const UiContext& context, const ShortcutSection::Row& row, QWidget* parent)
        : QWidget(parent)
    {
        const auto makeLabel = [&](const QString& text, QFont::Weight weight) {
            const auto label = new Label(
                context, systemFont(kSettingsTextSize, weight), ColorRole::Text, Label::WhenNarrow::Keep, this);
            label->setText(text);
            return label;
        };
        const auto line = new QHBoxLayout(this);
        line->setContentsMargins(0, 0, 0, 0);
        line->addWidget(makeLabel(row.label, QFont::Normal));
        line->addStretch(1);
        line->addWidget(makeLabel(row.keys, QFont::Medium));
        setAccessibleName(row.label);
        setAccessibleDescription(row.keys);
    }
};

} // namespace

GeneralTab::GeneralTab(const UiContext& context, std::function<void()> reset, QWidget* parent)
    : SettingsPage(QStringLiteral("General"), parent)
    , m_context(context)
    , m_reset(std::move(reset))
{
    setFocusPolicy(Qt::StrongFocus); // so that the keyboard can scroll it
    new FocusRing(context, this, FocusRing::When::ReachedByTab);
    addShortcuts();
    addReset();
}

void GeneralTab::addShortcuts()
{
    for (const auto& section : shortcutReference()) {
        const auto group = new SettingsSection(m_context, section.title, page());
        for (const auto& row : section.rows)
            group->add(new ShortcutRow(m_context, row, group));
        column().addWidget(group);
    }
    if (const auto note = keySymbolNote()) {
        const auto label =
            new Label(m_context, systemFont(kSettingsNoteSize), ColorRole::Muted, Label::WhenNarrow::Wrap, page());
        label->setText(*note);
        column().addWidget(label);
    }
}

void GeneralTab::addReset()
{
    const auto description =
        new Label(m_context, systemFont(kSettingsTextSize), ColorRole::Text, Label::WhenNarrow::Wrap, page());
    description->setText(QStringLiteral(
        "Deletes all decks and cards, resets theme, font size, opacity, and window position to defaults, restores the "
        "sample decks, and re-shows the welcome onboarding."));
    const auto button = new QPushButton(symbolIcon(Icon::Warning), QStringLiteral("Reset All Data…"), page());
    button->setAutoDefault(true);
    button->setAccessibleDescription(description->text());
    connect(button, &QPushButton::clicked, this, [this] { askToReset(); });
    column().addWidget(description);
    column().addSpacing(kBelowDescription - column().spacing());
    column().addWidget(button, 0, Qt::AlignLeft);
    column().addStretch(1);
}

void GeneralTab::askToReset()
{
    const auto alert = new QMessageBox(
        QMessageBox::Warning, QString(), QStringLiteral("Reset All Data?"), QMessageBox::NoButton, window());
    alert->setAttribute(Qt::WA_DeleteOnClose);
    alert->setInformativeText(QStringLiteral("This will permanently delete all your decks and cards and cannot be "
                                             "undone. Sample decks will be restored."));
    const auto confirm = alert->addButton(QStringLiteral("Reset Everything"), QMessageBox::DestructiveRole);
    auto palette = confirm->palette();
    palette.setColor(QPalette::ButtonText, toQColor(colorFor(ColorRole::Red, m_context.colors())));
    confirm->setPalette(palette);
    const auto cancel = alert->addButton(QStringLiteral("Cancel"), QMessageBox::RejectRole);
    alert->setDefaultButton(cancel);
    alert->setEscapeButton(cancel);
    connect(confirm, &QAbstractButton::clicked, this, [this] { m_reset(); });
    alert->open();
}

} // namespace cuebright
