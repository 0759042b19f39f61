#include "ui/settings/About.h"

#include "platform/qt/QtColors.h"
#include "ui/base/Fonts.h"
#include "ui/base/LinkOpener.h"
#include "ui/settings/Product.h"
#include "ui/settings/SettingsSection.h"
#include "ui/widgets/ApplicationIcon.h"
#include "ui/widgets/ButtonBase.h"
#include "ui/widgets/Label.h"

#include <QPainter>
#include <QVBoxLayout>

namespace cuebright {

namespace {

constexpr int kMargin = 20;
constexpr int kGap = 8;
constexpr double kTabNameSize = 22;

constexpr QSize kWindowSize {300, 260};
constexpr QSize kIconSize {64, 64};
constexpr double kWindowNameSize = 16;
constexpr double kWindowTextSize = 11;

constexpr int kLinkPadding = 6;
constexpr double kLinkCornerRadius = 4;
constexpr double kPressedOpacity = 0.6;

/// Opens a new message to the support desk.
class SupportLink final : public ButtonBase {
public:
    SupportLink(const UiContext& context, QWidget* parent)
        : ButtonBase(context, parent)
    {
        auto font = systemFont(kSettingsTextSize);
        font.setUnderline(true);
        setFont(font);
        setText(QLatin1String(product::kSupportMail));
        setCursor(Qt::PointingHandCursor);
        connect(this, &QAbstractButton::clicked, this, [] { openLink(product::supportMailLink()); });
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        const auto metrics = fontMetrics();
        return {metrics.horizontalAdvance(text()) + 2 * kLinkPadding, metrics.height() + 2 * kLinkPadding};
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        drawFocusRing(painter, kLinkCornerRadius);
        painter.setOpacity(isDown() ? kPressedOpacity : 1);
        painter.setPen(toQColor(m_context.colors().accent()));
        painter.drawText(rect(), Qt::AlignCenter, text());
    }
};

Label* makeText(const UiContext& context, const QString& text, const QFont& font, ColorRole color, QWidget* parent)
{
    const auto label = new Label(context, font, color, Label::WhenNarrow::Wrap, parent);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    label->setText(text);
    return label;
}

/// Lays out `rows` from top to bottom in the middle of `page`.
void fill(QWidget& page, std::initializer_list<QWidget*> rows)
{
    const auto column = new QVBoxLayout(&page);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addStretch(1);
    for (const auto row : rows) {
        const bool isFixed = row->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed;
        column->addWidget(row, 0, isFixed ? Qt::AlignHCenter : Qt::Alignment());
    }
    column->addStretch(1);
}

} // namespace

AboutTab::AboutTab(const UiContext& context, QWidget* parent)
    : QWidget(parent)
{
    const auto font = systemFont(kSettingsTextSize);
    fill(*this,
        {makeText(context, product::name(), systemFont(kTabNameSize, QFont::DemiBold), ColorRole::Text, this),
            makeText(context, product::versionText(), font, ColorRole::Muted, this),
            makeText(context, product::tagline(), font, ColorRole::Text, this), new SupportLink(context, this)});
}

AboutWindow::AboutWindow(const UiContext& context)
    : AuxiliaryWindow(context, QStringLiteral("About Cuebright"))
{
    const auto font = systemFont(kWindowTextSize);
    const auto icon = new QLabel(this);
    icon->setAlignment(Qt::AlignCenter);
    icon->setPixmap(applicationIcon().pixmap(kIconSize, devicePixelRatio()));
    const auto credits =
        new QLabel(product::tagline() + QStringLiteral("\n\n") + QLatin1String(product::kSupportMail), this);
    credits->setTextFormat(Qt::PlainText);
    credits->setFont(font);
    credits->setAlignment(Qt::AlignCenter);
    credits->setWordWrap(true);
    credits->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    credits->setFocusPolicy(Qt::StrongFocus);
    credits->setFocus();
    fill(*this,
        {icon, makeText(context, product::name(), systemFont(kWindowNameSize, QFont::DemiBold), ColorRole::Text, this),
            makeText(context, product::versionAndBuildText(), font, ColorRole::Text, this), credits});
    credits->raise(); // screen readers read in stacking order
    setFixedSize(kWindowSize);
}

} // namespace cuebright
