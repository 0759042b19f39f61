#include "ui/settings/ShortcutRow.h"

#include "ui/base/Fonts.h"
#include "ui/settings/SettingsSection.h"
#include "ui/widgets/Label.h"

#include <QHBoxLayout>

namespace cuebright {

ShortcutRow::ShortcutRow(const UiContext& context, const ShortcutSection::Row& row, QWidget* parent)
    : QWidget(parent)
{
    const auto add = [&](const QString& text, const QFont& font) {
        const auto label = new Label(context, font, ColorRole::Text, Label::WhenNarrow::Keep, this);
        label->setText(text);
        return label;
    };
    const auto line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(add(row.label, systemFont(kSettingsTextSize)));
    line->addStretch(1);
    line->addWidget(add(row.keys, systemFont(kSettingsTextSize, QFont::Medium)));
    setAccessibleName(row.label);
    setAccessibleDescription(row.keys);
}

} // namespace cuebright
