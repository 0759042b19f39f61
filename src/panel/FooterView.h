#pragma once

#include "panel/PanelContext.h"

#include <QWidget>

namespace cuebright {

class ChromeButton;
class PanelLabel;

/// The panel's last line: position, messages and the buttons.
class FooterView final : public QWidget {
public:
    FooterView(const PanelContext& context, QWidget* parent);

    void refresh();

private:
    ChromeButton* addButton(const QString& text, const char* accessibleName, const char* hint);

    const PanelContext& m_context;
    PanelLabel* m_position;
    PanelLabel* m_wordCount;
    PanelLabel* m_error;
    PanelLabel* m_feedback;
    ChromeButton* m_edit;
    ChromeButton* m_previous;
    ChromeButton* m_next;
    ChromeButton* m_cancel;
    ChromeButton* m_done;
};

} // namespace cuebright
