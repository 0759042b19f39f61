#pragma once

#include "ui/base/UiContext.h"

#include <QFileDialog>
#include <QPointer>

#include <string>

namespace cuebright {

/// Writes the active deck into a Markdown file of the user's choice.
class ExportCommand final {
public:
    /// `panel` outlives this.
    ExportCommand(const UiContext& context, QWidget& panel);
    ~ExportCommand();
    ExportCommand(const ExportCommand&) = delete;
    ExportCommand& operator=(const ExportCommand&) = delete;

    /// Takes the deck's text as it is now and asks for the file, on a sheet of the active window, else of the
    /// panel. A question that is open already comes to the front.
    void exportDeck();

    /// Null while none is open.
    [[nodiscard]] QFileDialog* dialog() const { return m_dialog; }

private:
    void ask(QWidget* parent);
    void write(const QString& file, const std::string& text);

    const UiContext& m_context;
    QWidget& m_panel;
    QPointer<QFileDialog> m_dialog;
};

} // namespace cuebright
