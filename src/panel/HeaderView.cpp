#include "panel/HeaderView.h"

#include "panel/DeckPicker.h"
#include "panel/PanelLabel.h"
#include "panel/TextConversion.h"
#include "store/CardStore.h"
#include "theme/Fonts.h"

#include <QHBoxLayout>

namespace cuebright {

HeaderView::HeaderView(const PanelContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_position(new PanelLabel(context, letterSpaced(monospacedFont(11, QFont::Medium), 1.8), PanelLabel::Ink::Muted,
          PanelLabel::WhenNarrow::Keep, this))
    , m_deckPicker(new DeckPicker(context, this))
{
    const auto row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    row->addWidget(m_position, 0, Qt::AlignVCenter);
    row->addStretch(1);
    row->addWidget(m_deckPicker, 0, Qt::AlignVCenter);
}

void HeaderView::refresh()
{
    m_position->setText(toQString(m_context.store.positionLabel()));
    m_deckPicker->refresh();
}

} // namespace cuebright
