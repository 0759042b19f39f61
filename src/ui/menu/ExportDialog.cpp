#include "ui/menu/ExportDialog.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>

namespace cuebright {

namespace {

QString startFolder()
{
    const auto documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

} // namespace

ExportDialog::ExportDialog(const QString& proposedName, QWidget* parent)
    : QFileDialog(parent, QStringLiteral("Export Deck"), startFolder())
{
    setOption(DontUseNativeDialog);
    // Qt's own confirmation runs a nested event loop, in which the dialog could be deleted together with its parent.
    setOption(DontConfirmOverwrite);
    setAcceptMode(AcceptSave);
    setFileMode(AnyFile);
    setNameFilter(QStringLiteral("Plain text (*.md *.markdown *.txt)"));
    setDefaultSuffix(QStringLiteral("md"));
    setLabelText(Accept, QStringLiteral("Export"));
    selectFile(proposedName);
}

void ExportDialog::accept()
{
    const auto files = selectedFiles();
    const QFileInfo target(files.isEmpty() ? QString() : files.constFirst());
    if (target.exists() && !target.isDir())
        askToReplace(target.fileName());
    else
        QFileDialog::accept();
}

void ExportDialog::askToReplace(const QString& name)
{
    const auto sheet = new QMessageBox(QMessageBox::Warning, QString(),
        QStringLiteral("“%1” already exists. Do you want to replace it?").arg(name), QMessageBox::NoButton, this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->setTextFormat(Qt::PlainText);
    const auto replace = sheet->addButton(QStringLiteral("Replace"), QMessageBox::AcceptRole);
    const auto cancel = sheet->addButton(QStringLiteral("Cancel"), QMessageBox::RejectRole);
    sheet->setDefaultButton(cancel);
    sheet->setEscapeButton(cancel);
    connect(replace, &QAbstractButton::clicked, this, [this] { QFileDialog::accept(); });
    sheet->open();
}

} // namespace cuebright
