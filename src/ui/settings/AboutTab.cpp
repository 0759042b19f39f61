#include "ui/settings/AboutTab.h"

#include "ui/base/Fonts.h"
#include "ui/settings/LinkButton.h"
#include "ui/settings/Product.h"
#include "ui/settings/SettingsSection.h"
#include "ui/widgets/Label.h"

#include <QVBoxLayout>

namespace cuebright {

namespace {

constexpr int kMargin = 20;
constexpr int kGap = 8;
constexpr double kNameSize = 22;

} // namespace

AboutTab::AboutTab(const UiContext& context, QWidget* parent)
    : QWidget(parent)
{
    const auto column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    const auto add = [&](const QString& text, const QFont& font, ColorRole ink) {
        const auto label = new Label(context, font, ink, Label::WhenNarrow::Wrap, this);
        label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        label->setText(text);
        column->addWidget(label);
    };
    column->addStretch(1);
    add(product::name(), systemFont(kNameSize, QFont::DemiBold), ColorRole::Text);
    add(QStringLiteral("Version ") + product::version(), systemFont(kSettingsTextSize), ColorRole::Muted);
    add(product::tagline(), systemFont(kSettingsTextSize), ColorRole::Text);
    const auto contact = new LinkButton(context, product::supportMail(), product::supportMailLink(), this);
    column->addWidget(contact, 0, Qt::AlignHCenter);
    column->addStretch(1);
}

} // namespace cuebright
