#include "ui/panel/ErrorNotice.h"

#include "platform/qt/QtColors.h"
#include "store/CardStore.h"
#include "ui/base/Fonts.h"
#include "ui/widgets/ButtonBase.h"
#include "ui/widgets/Label.h"

#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>

namespace cuebright {

namespace {

constexpr int kDotSize = 6;
constexpr int kGap = 6;
constexpr int kDismissSize = 16;
constexpr double kDismissOpacity = 0.8;

} // namespace

class DismissButton final : public ButtonBase {
public:
    DismissButton(const UiContext& context, QWidget* parent)
        : ButtonBase(context, parent)
    {
        setAccessibleName(QStringLiteral("Dismiss error"));
    }

    void setInkOpacity(double opacity)
    {
        m_opacity = opacity;
        update();
    }

    [[nodiscard]] QSize sizeHint() const override { return {kDismissSize, kDismissSize}; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        // Drawn here, because an icon of this size is thinner than the text beside it.
        constexpr double kReach = 3;
        constexpr double kStroke = 1.5;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setOpacity(m_opacity);
        const auto red = colorFor(ColorRole::Red, m_context.colors());
        painter.setPen(
            QPen(toQColor(red.withAlpha(isDown() ? 1 : kDismissOpacity)), kStroke, Qt::SolidLine, Qt::RoundCap));
        const auto centre = QRectF(rect()).center();
        painter.drawLine(centre - QPointF(kReach, kReach), centre + QPointF(kReach, kReach));
        painter.drawLine(centre - QPointF(kReach, -kReach), centre + QPointF(kReach, -kReach));
        drawFocusRing(painter, 4);
    }

private:
    double m_opacity = 1;
};

ErrorNotice::ErrorNotice(const UiContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_text(new Label(context, monospacedFont(11, QFont::Medium), ColorRole::Red, Label::WhenNarrow::Elide, this))
    , m_dismiss(new DismissButton(context, this))
{
    const auto row = new QHBoxLayout(this);
    row->setContentsMargins(kDotSize + kGap, 0, 0, 0);
    row->setSpacing(kGap);
    row->addWidget(m_text, 0, Qt::AlignVCenter);
    row->addWidget(m_dismiss, 0, Qt::AlignVCenter);
    connect(m_dismiss, &QAbstractButton::clicked, this, [this] { m_context.store.dismissError(); });
}

void ErrorNotice::setText(const QString& text) { m_text->setText(text); }

void ErrorNotice::setInkOpacity(double opacity)
{
    m_opacity = opacity;
    m_text->setInkOpacity(opacity);
    m_dismiss->setInkOpacity(opacity);
    update();
}

void ErrorNotice::announce() { m_text->announce(); }

QSize ErrorNotice::sizeHint() const
{
    return {kDotSize + kGap + m_text->sizeHint().width() + kGap + kDismissSize,
        std::max(m_text->sizeHint().height(), kDismissSize)};
}

QSize ErrorNotice::minimumSizeHint() const { return {kDotSize + kGap + kGap + kDismissSize, sizeHint().height()}; }

void ErrorNotice::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(m_opacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQColor(colorFor(ColorRole::Red, m_context.colors())));
    painter.drawEllipse(QRectF(0, (height() - kDotSize) / 2.0, kDotSize, kDotSize));
}

} // namespace cuebright
