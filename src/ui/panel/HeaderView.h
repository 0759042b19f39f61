#pragma once

#include "platform/MainQueue.h"
#include "ui/base/UiContext.h"

#include <QWidget>

namespace cuebright {

class DeckPicker;
class Label;

/// The panel's first line: the card's position and the deck. For 1.0 s after a pulse the share badge replaces the
/// position.
class HeaderView final : public QWidget {
public:
    HeaderView(const UiContext& context, QWidget* parent);

    void refresh();
    void pulse();

    [[nodiscard]] DeckPicker& deckPicker() const { return *m_deckPicker; }

private:
    const UiContext& m_context;
    Label* m_eyebrow;
    DeckPicker* m_deckPicker;
    bool m_showReturnPulse = false;
    PendingTask m_pulseEnd;
};

} // namespace cuebright
