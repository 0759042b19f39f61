#include "ui/menu/EditCommands.h"

#include "store/CardStore.h"
#include "store/UndoManager.h"
#include "ui/base/ModalSheets.h"
#include "ui/panel/NotesPanel.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMetaObject>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QTextEdit>

namespace cuebright {

namespace {

/// The slot for the command in all of Qt's text widgets; null for other commands.
const char* textSlot(Command command)
{
    switch (command) {
    case Command::Undo:
        return "undo";
    case Command::Redo:
        return "redo";
    case Command::Cut:
        return "cut";
    case Command::Copy:
        return "copy";
    case Command::Paste:
        return "paste";
    case Command::SelectAll:
        return "selectAll";
    default:
        return nullptr;
    }
}

bool isText(const QWidget* widget)
{
    return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget)
        || qobject_cast<const QTextEdit*>(widget);
}

/// A label has no such slots, and the menu's shortcuts take precedence over its own keys.
void performOn(QLabel& label, Command command)
{
    if (command == Command::Copy && label.hasSelectedText())
        QGuiApplication::clipboard()->setText(label.selectedText());
    else if (command == Command::SelectAll)
        label.setSelection(0, static_cast<int>(label.text().size()));
}

bool isAvailable(const QWidget* text, bool isUndo)
{
    if (const auto line = qobject_cast<const QLineEdit*>(text))
        return isUndo ? line->isUndoAvailable() : line->isRedoAvailable();
    const auto plain = qobject_cast<const QPlainTextEdit*>(text);
    const auto document = plain ? plain->document() : static_cast<const QTextEdit*>(text)->document();
    return isUndo ? document->isUndoAvailable() : document->isRedoAvailable();
}

} // namespace

EditCommands::EditCommands(const CardStore& store, const NotesPanel& panel)
    : m_store(store)
    , m_panel(panel)
    , m_undoManager(panel.undoManager())
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* old, QWidget* now) {
        if (qobject_cast<QMenuBar*>(now))
            m_focusBeforeMenus = old;
        if (const auto text = qobject_cast<QPlainTextEdit*>(now)) {
            connect(text, &QPlainTextEdit::undoAvailable, this, &EditCommands::notify, Qt::UniqueConnection);
            connect(text, &QPlainTextEdit::redoAvailable, this, &EditCommands::notify, Qt::UniqueConnection);
        }
        notify();
    });
}

void EditCommands::notify() { targetChanged.notify(); }

QWidget* EditCommands::focusedText() const
{
    auto* focused = QApplication::focusWidget();
    if (qobject_cast<QMenuBar*>(focused))
        focused = m_focusBeforeMenus;
    return isText(focused) ? focused : nullptr;
}

bool EditCommands::perform(Command command)
{
    const auto* const slot = textSlot(command);
    if (!slot)
        return false;
    if (const auto text = focusedText()) {
        QMetaObject::invokeMethod(text, slot);
        return true;
    }
    if (const auto label = qobject_cast<QLabel*>(QApplication::focusWidget()))
        performOn(*label, command);
    if (isStoreUndoBlocked())
        return true;
    if (command == Command::Undo)
        m_undoManager->undo();
    else if (command == Command::Redo)
        m_undoManager->redo();
    return true;
}

bool EditCommands::isStoreUndoBlocked() const { return m_store.isEditing() || isWaitingForAnswer(m_panel); }

std::string EditCommands::title(Command undoOrRedo) const
{
    const bool isUndo = undoOrRedo == Command::Undo;
    const std::string verb = isUndo ? "Undo" : "Redo";
    const auto name = isUndo ? m_undoManager->undoActionName() : m_undoManager->redoActionName();
    return focusedText() || m_store.isEditing() || name.empty() ? verb : verb + ' ' + name;
}

bool EditCommands::isEnabled(Command undoOrRedo) const
{
    const bool isUndo = undoOrRedo == Command::Undo;
    if (const auto text = focusedText())
        return isAvailable(text, isUndo);
    if (isStoreUndoBlocked())
        return false;
    return isUndo ? m_undoManager->canUndo() : m_undoManager->canRedo();
}

} // namespace cuebright
