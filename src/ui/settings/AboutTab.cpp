#include "ui/settings/AboutTab.h"

#include "ui/base/Fonts.h"
#include "ui/settings/LinkButton.h"
#include "ui/settings/Product.h"
#include "ui/settings/SettingsSection.h"
#include "ui/widgets/PanelLabel.h"

#include <QVBoxLayout>

namespace cuebright {

namespace {

constexpr int kMargin = 20;
constexpr int kGap = 8;
constexpr double kNameSize = 22;

} // namespace

AboutTab::AboutTab(const PanelContext& context, QWidget* parent)
    : QWidget(parent)
{
    const auto column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    const auto add = [&](const QString& text, const QFont& font, Ink ink) {
        const auto label = new PanelLabel(context, font, ink, PanelLabel::WhenNarrow::Wrap, this);
        label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        label->setText(text);
        column->addWidget(label);
    };
    column->addStretch(1);
    add(product::name(), systemFont(kNameSize, QFont::DemiBold), Ink::Text);
    add(QStringLiteral("Version ") + product::version(), systemFont(kSettingsTextSize), Ink::Muted);
    add(product::tagline(), systemFont(kSettingsTextSize), Ink::Text);
    const auto contact = new LinkButton(context, product::supportMail(), product::supportMailLink(), this);
    column->addWidget(contact, 0, Qt::AlignHCenter);
    column->addStretch(1);
}

} // namespace cuebright
