#include "ui/settings/SettingsSection.h"

#include "platform/qt/QtColors.h"
#include "ui/base/Fonts.h"
#include "ui/widgets/CuebrightChromeStyle.h"
#include "ui/widgets/Label.h"

#include <QPainter>
#include <QVBoxLayout>

namespace cuebright {

namespace {

constexpr int kTitleGap = 5;
constexpr int kRowGap = 6;
constexpr int kHorizontalPadding = 14;
constexpr int kVerticalPadding = 8;
constexpr double kCornerRadius = 8;
constexpr double kFill = 0.25;

} // namespace

SettingsSection::SettingsSection(const UiContext& context, const QString& title, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_frame(new QWidget(this))
    , m_rows(new QVBoxLayout(m_frame))
{
    const auto heading = new Label(
        context, systemFont(kSettingsTextSize, QFont::DemiBold), ColorRole::Text, Label::WhenNarrow::Keep, this);
    heading->setText(title);
    heading->stackUnder(m_frame); // screen readers read in stacking order
    m_rows->setContentsMargins(kHorizontalPadding, kVerticalPadding, kHorizontalPadding, kVerticalPadding);
    m_rows->setSpacing(kRowGap);
    const auto column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kTitleGap);
    column->addWidget(heading);
    column->addWidget(m_frame);
}

void SettingsSection::add(QWidget* widget) { m_rows->addWidget(widget); }

Label* SettingsSection::addNote(const QString& text)
{
    const auto note =
        new Label(m_context, systemFont(kSettingsNoteSize), ColorRole::Muted, Label::WhenNarrow::Wrap, m_frame);
    note->setText(text);
    add(note);
    return note;
}

void SettingsSection::paintEvent(QPaintEvent*)
{
    const auto colors = m_context.colors();
    const double inset = colors.borderWidth() / 2;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(toQColor(colors.sep()), colors.borderWidth()));
    painter.setBrush(toQColor(colors.sep().withAlpha(kFill)));
    painter.drawPath(
        continuousRoundedRect(QRectF(m_frame->geometry()).adjusted(inset, inset, -inset, -inset), kCornerRadius));
}

} // namespace cuebright
