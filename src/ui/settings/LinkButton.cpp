#include "ui/settings/LinkButton.h"

#include "platform/qt/QtColors.h"
#include "platform/qt/TextConversion.h"
#include "ui/base/Fonts.h"
#include "ui/base/LinkOpener.h"
#include "ui/settings/SettingsSection.h"

#include <QPainter>

namespace cuebright {

namespace {

constexpr int kPadding = 6;
constexpr double kCornerRadius = 4;
constexpr double kPressedOpacity = 0.6;

} // namespace

LinkButton::LinkButton(const UiContext& context, const QString& text, const QString& target, QWidget* parent)
    : ButtonBase(context, parent)
{
    auto font = systemFont(kSettingsTextSize);
    font.setUnderline(true);
    setFont(font);
    setText(text);
    setCursor(Qt::PointingHandCursor);
    connect(this, &QAbstractButton::clicked, this, [target] { openLink(toUtf8(target)); });
}

QSize LinkButton::sizeHint() const
{
    const auto metrics = fontMetrics();
    return {metrics.horizontalAdvance(text()) + 2 * kPadding, metrics.height() + 2 * kPadding};
}

void LinkButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawFocusRing(painter, kCornerRadius);
    painter.setOpacity(isDown() ? kPressedOpacity : 1);
    painter.setPen(toQColor(m_context.colors().accent()));
    painter.drawText(rect(), Qt::AlignCenter, text());
}

} // namespace cuebright
