#pragma once

#include "ui/base/UiContext.h"

#include <QFileDialog>
#include <QPointer>

#include <string>

namespace cuebright {

/// Exports the active deck to a Markdown file that the user chooses.
class ExportCommand final : public QObject {
public:
    /// `panel` must outlive this.
    ExportCommand(const UiContext& context, QWidget& panel);

    /// Asks for the file in a sheet of the active window, else of the panel. The deck's text is that of now. A dialog
    /// that is open already is activated instead.
    void exportDeck();

    /// The open dialog, or null.
    [[nodiscard]] QFileDialog* dialog() const { return m_dialog; }

private:
    void ask(QWidget* parent);
    void write(const QString& file, const std::string& text);

    const UiContext& m_context;
    QWidget& m_panel;
    QPointer<QFileDialog> m_dialog;
};

} // namespace cuebright
