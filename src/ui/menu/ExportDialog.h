#pragma once

#include <QFileDialog>

namespace cuebright {

/// Asks for the file name of an export, and for confirmation before a file is replaced. Names without a suffix get
/// ".md".
///
/// Never the native dialog: it may belong to another process, whose windows we cannot exclude from screen sharing.
class ExportDialog final : public QFileDialog {
public:
    ExportDialog(const QString& proposedName, QWidget* parent);

protected:
    void accept() override;

private:
    void askToReplace(const QString& name);
};

} // namespace cuebright
