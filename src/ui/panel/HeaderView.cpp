#include "ui/panel/HeaderView.h"

#include "platform/CaptureExclusion.h"
#include "platform/qt/TextConversion.h"
#include "store/CardStore.h"
#include "ui/base/Fonts.h"
#include "ui/base/ShareStatus.h"
#include "ui/panel/DeckPicker.h"
#include "ui/widgets/Label.h"

#include <QHBoxLayout>

namespace cuebright {

namespace {

constexpr int kGap = 12;
constexpr Seconds kPulseTime {1.0};
constexpr Seconds kCrossFadeTime {0.3};

} // namespace

HeaderView::HeaderView(const UiContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_eyebrow(new Label(context, letterSpaced(monospacedFont(11, QFont::Medium), 1.8), ColorRole::Muted,
          Label::WhenNarrow::Keep, this))
    , m_deckPicker(new DeckPicker(context, this))
{
    const auto row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    row->addWidget(m_eyebrow, 0, Qt::AlignVCenter);
    row->addStretch(1);
    row->addWidget(m_deckPicker, 0, Qt::AlignVCenter);
}

void HeaderView::refresh()
{
    const auto badge = badgeFor(m_context.desktop.captureExclusion.state());
    const auto position = toQString(m_context.store.positionLabel());
    if (m_showReturnPulse)
        m_eyebrow->crossFadeTo(toQString(badge.text), badge.color, kCrossFadeTime);
    else if (m_eyebrow->color() != ColorRole::Muted)
        m_eyebrow->crossFadeTo(position, ColorRole::Muted, kCrossFadeTime);
    else
        m_eyebrow->setText(position);
    m_deckPicker->refresh();
}

void HeaderView::pulse()
{
    m_showReturnPulse = true;
    refresh();
    m_eyebrow->announce();
    m_pulseEnd = m_context.platform.mainQueue.after(kPulseTime, [this] {
        m_showReturnPulse = false;
        refresh();
    });
}

} // namespace cuebright
