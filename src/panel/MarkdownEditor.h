#pragma once

#include "panel/PanelContext.h"

#include <QPlainTextEdit>

namespace cuebright {

/// The plain-text editor of the open edit.
class MarkdownEditor final : public QPlainTextEdit {
public:
    MarkdownEditor(const PanelContext& context, QWidget* parent);

    /// Takes the store's text, forgets the text's own history, and puts the selection where writing starts.
    void open();
    void refreshStyle();

private:
    void writeToStore();

    const PanelContext& m_context;
    bool m_isUpdating = false;
};

} // namespace cuebright
