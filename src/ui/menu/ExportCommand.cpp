#include "ui/menu/ExportCommand.h"

#include "platform/FileSystem.h"
#include "platform/qt/TextConversion.h"
#include "store/CardStore.h"
#include "ui/menu/ExportDialog.h"
#include "ui/menu/SafeFileName.h"

#include <QApplication>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace cuebright {

namespace {

/// Whether `window` can be a dialog's parent; menus, tool tips and tray icons cannot.
bool canHaveSheets(const QWidget* window)
{
    const auto type = window->windowType();
    return window->isVisible() && !window->isMinimized() && (type == Qt::Window || type == Qt::Dialog)
        && !window->windowFlags().testFlag(Qt::BypassWindowManagerHint);
}

void bringToFront(QWidget& window)
{
    window.raise();
    window.activateWindow();
}

} // namespace

ExportCommand::ExportCommand(const UiContext& context, QWidget& panel)
    : m_context(context)
    , m_panel(panel)
{
}

void ExportCommand::exportDeck()
{
    if (m_dialog)
        return bringToFront(*m_dialog);
    const auto active = QApplication::activeWindow();
    const auto parent = active && canHaveSheets(active) ? active : &m_panel;
    if (canHaveSheets(parent) && !parent->isActiveWindow())
        bringToFront(*parent);
    auto text = m_context.store.exportDeckAsMarkdown();
    ask(canHaveSheets(parent) ? parent : nullptr);
    connect(m_dialog, &QFileDialog::fileSelected, this,
        [this, text = std::move(text)](const QString& file) { write(file, text); });
}

void ExportCommand::ask(QWidget* parent)
{
    m_dialog = new ExportDialog(toQString(safeFileName(m_context.store.deckName()) + ".md"), parent);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(qApp, &QCoreApplication::aboutToQuit, m_dialog, &QObject::deleteLater); // it may have no parent
    m_dialog->setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
    m_dialog->show();
}

void ExportCommand::write(const QString& file, const std::string& text)
{
    if (file.isEmpty())
        return;
    const QFileInfo target(file);
    if (m_context.platform.fileSystem.writeFileAtomically(
            target.filesystemFilePath(), text, FileSystem::Readers::AsUsual))
        return m_context.store.showFeedback("Export failed — check file permissions");
    m_context.store.showFeedback("Exported to " + toUtf8(target.fileName()));
    std::error_code error;
    if (std::filesystem::equivalent(target.filesystemFilePath(), m_context.store.stateURL(), error))
        m_context.store.scheduleSave(); // the export has overwritten the state file
}

} // namespace cuebright
