#include "ui/settings/AboutWindow.h"

#include "ui/base/Fonts.h"
#include "ui/settings/Product.h"
#include "ui/widgets/ApplicationIcon.h"

#include <QLabel>
#include <QVBoxLayout>

namespace cuebright {

namespace {

constexpr QSize kSize {300, 260};
constexpr int kMargin = 20;
constexpr int kGap = 8;
constexpr int kIconSide = 64;
constexpr double kNameSize = 16;
constexpr double kTextSize = 11;

} // namespace

AboutWindow::AboutWindow(const UiContext& context)
    : AuxiliaryWindow(context, QStringLiteral("About Cuebright"))
{
    const auto column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    const auto add = [&](const QString& text, const QFont& font) {
        const auto label = new QLabel(this);
        label->setTextFormat(Qt::PlainText);
        label->setFont(font);
        label->setText(text);
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
        column->addWidget(label);
        return label;
    };
    column->addStretch(1);
    const auto icon = add({}, systemFont(kTextSize));
    icon->setPixmap(applicationIcon().pixmap(QSize(kIconSide, kIconSide), devicePixelRatio()));
    add(product::name(), systemFont(kNameSize, QFont::DemiBold));
    add(QStringLiteral("Version %1 (%2)").arg(product::version(), QLatin1String(product::kBuild)),
        systemFont(kTextSize));
    const auto credits =
        add(product::tagline() + QStringLiteral("\n\n") + product::supportMail(), systemFont(kTextSize));
    credits->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    credits->setFocusPolicy(Qt::StrongFocus);
    credits->setFocus();
    column->addStretch(1);
    setFixedSize(kSize);
}

} // namespace cuebright
