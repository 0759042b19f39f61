#include "ui/editor/MarkdownEditor.h"

#include "store/CardStore.h"
#include "ui/base/KeyStroke.h"
#include "ui/editor/TextViewManager.h"

#include <QMimeData>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace cuebright {

enum class MarkdownEditor::Command {
    Undo,
    Redo,
    Bold,
    Italic,
    DeleteWordBefore,
    DeleteWordAfter,
    Save,
    LeaveForwards,
    LeaveBackwards,
};

namespace {

/// The text that the key inserts; empty if none.
QString typedText(const QKeyEvent& event)
{
    const auto modifiers = event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        return modifiers == Qt::NoModifier || modifiers == Qt::ShiftModifier ? QStringLiteral("\n") : QString();
    auto text = event.text();
    if (text.isEmpty())
        return {};
    const QChar first = text[0];
    // Some keyboard layouts insert zero-width joiners with Ctrl+Shift.
    if (first.category() == QChar::Other_Format)
        return text;
    if (modifiers == Qt::ControlModifier || modifiers == (Qt::ControlModifier | Qt::ShiftModifier))
        return {};
    const bool isPair = first.isHighSurrogate() && text.size() > 1 && text[1].isLowSurrogate();
    const bool isText = first.isPrint() || first.category() == QChar::Other_PrivateUse || isPair;
    return isText || first == QLatin1Char('\t') ? text : QString();
}

} // namespace

std::optional<MarkdownEditor::Command> MarkdownEditor::commandFor(const QKeyEvent& event)
{
    struct Row {
        Qt::KeyboardModifiers modifiers;
        int key;
        Command command;
    };
    static constexpr std::array kRows {
        Row {Qt::ControlModifier, Qt::Key_Z, Command::Undo},
        Row {Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_Z, Command::Redo},
        Row {Qt::ControlModifier, Qt::Key_B, Command::Bold},
        Row {Qt::ControlModifier, Qt::Key_I, Command::Italic},
        Row {Qt::ControlModifier, Qt::Key_Backspace, Command::DeleteWordBefore},
        Row {Qt::ControlModifier, Qt::Key_Delete, Command::DeleteWordAfter},
        Row {Qt::NoModifier, Qt::Key_Escape, Command::Save},
        Row {Qt::ControlModifier, Qt::Key_Tab, Command::LeaveForwards},
        Row {Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_Backtab, Command::LeaveBackwards},
    };
    const auto stroke = KeyStroke::of(event);
    const auto row = std::find_if(kRows.begin(), kRows.end(),
        [&stroke](const Row& r) { return r.key == stroke.key && r.modifiers == stroke.modifiers; });
    return row == kRows.end() ? std::nullopt : std::optional(row->command);
}

void MarkdownEditor::perform(Command command)
{
    switch (command) {
    case Command::Undo:
    case Command::Redo:
        m_typingStartsNewStep = true;
        return command == Command::Undo ? undo() : redo();
    case Command::Bold:
        return wrapSelection(QStringLiteral("**"));
    case Command::Italic:
        return wrapSelection(QStringLiteral("*"));
    case Command::DeleteWordBefore:
        return deleteWord(QTextCursor::PreviousWord);
    case Command::DeleteWordAfter:
        return deleteWord(QTextCursor::NextWord);
    case Command::Save:
        commitComposition();
        return m_context.store.saveEdit();
    case Command::LeaveForwards:
        QAbstractScrollArea::focusNextPrevChild(true);
        return;
    case Command::LeaveBackwards:
        QAbstractScrollArea::focusNextPrevChild(false);
        return;
    }
}

void MarkdownEditor::wrapSelection(const QString& marker)
{
    if (m_manager)
        m_manager->wrapSelection(marker);
}

void MarkdownEditor::deleteWord(QTextCursor::MoveOperation direction)
{
    auto cursor = textCursor();
    if (!cursor.hasSelection())
        cursor.movePosition(direction, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    setTextCursor(cursor);
    ensureCursorVisible();
}

bool MarkdownEditor::event(QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return QPlainTextEdit::event(event);
    const auto& key = *static_cast<QKeyEvent*>(event);
    const bool isPaging = key.key() == Qt::Key_PageUp || key.key() == Qt::Key_PageDown;
    if (!isPaging && !commandFor(key))
        return QPlainTextEdit::event(event);
    event->accept();
    return true;
}

void MarkdownEditor::keyPressEvent(QKeyEvent* event)
{
    if (const auto command = commandFor(*event)) {
        event->accept();
        return perform(*command);
    }
    const auto typed = typedText(*event);
    if (typed.isEmpty() || isReadOnly())
        return QPlainTextEdit::keyPressEvent(event);
    event->accept();
    insertInput(typed, UndoStep::MayJoinTyping);
}

/// A composition replaces the selection when it starts, so its commit must not also overwrite a character.
void MarkdownEditor::inputMethodEvent(QInputMethodEvent* event)
{
    const auto cursor = textCursor();
    if (!event->preeditString().isEmpty() && cursor.hasSelection())
        m_compositionReplacesSelection = true;
    const auto committed = m_documentText.encodedInput(event->commitString());
    const bool overwrites = !committed.isEmpty() && event->replacementLength() == 0 && !m_compositionReplacesSelection
        && overwritesAt(cursor);
    if (event->preeditString().isEmpty())
        m_compositionReplacesSelection = false;

    limitLayoutTime(committed);
    QInputMethodEvent adapted(event->preeditString(), event->attributes());
    adapted.setCommitString(committed, event->replacementStart(), overwrites ? 1 : event->replacementLength());
    QPlainTextEdit::inputMethodEvent(&adapted);
    event->setAccepted(adapted.isAccepted());
    if (!committed.isEmpty())
        m_typingStartsNewStep = overwrites;
}

bool MarkdownEditor::focusNextPrevChild(bool next) { return !next && QAbstractScrollArea::focusNextPrevChild(false); }

QMimeData* MarkdownEditor::createMimeDataFromSelection() const
{
    const auto mimeData = new QMimeData;
    auto selected = m_documentText.decoded(textCursor().selectedText());
    mimeData->setText(selected.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    return mimeData;
}

bool MarkdownEditor::canInsertFromMimeData(const QMimeData* source) const { return source->hasText(); }

void MarkdownEditor::insertFromMimeData(const QMimeData* source)
{
    if (!isReadOnly() && source->hasText())
        insertInput(source->text(), UndoStep::Own);
}

bool MarkdownEditor::overwritesAt(const QTextCursor& cursor) const
{
    return m_manager && m_manager->isOverwriteMode() && !cursor.hasSelection() && !cursor.atEnd();
}

void MarkdownEditor::insertInput(const QString& input, UndoStep step)
{
    const auto inserted = m_documentText.encodedInput(input);
    if (inserted.isEmpty())
        return;
    limitLayoutTime(inserted);
    auto cursor = textCursor();
    const bool overwrites = overwritesAt(cursor);
    if (overwrites)
        cursor.setPosition(cursor.position() + 1, QTextCursor::KeepAnchor);
    const bool isOwnStep = overwrites || step == UndoStep::Own;
    // An edit block never joins the undo step before it, but typing after it joins the block.
    const bool isBlock = std::exchange(m_typingStartsNewStep, isOwnStep) || isOwnStep;
    if (isBlock)
        cursor.beginEditBlock();
    cursor.insertText(inserted);
    if (isBlock)
        cursor.endEditBlock();
    setTextCursor(cursor);
    ensureCursorVisible();
}

} // namespace cuebright
