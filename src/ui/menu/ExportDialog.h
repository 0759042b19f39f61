#pragma once

#include <QFileDialog>

namespace cuebright {

/// Asks where to put a Markdown file; ".md" is added to a name without a suffix. Asks once more before a file is
/// replaced.
///
/// Never the system's own dialog: that may belong to another process, which nothing keeps out of a screen share.
class ExportDialog final : public QFileDialog {
public:
    ExportDialog(const QString& proposedName, QWidget* parent);

protected:
    void accept() override;

private:
    void askToReplace(const QString& name);
};

} // namespace cuebright
