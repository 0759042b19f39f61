#pragma once

#include "platform/MainQueue.h"
#include "ui/base/UiContext.h"
#include "ui/editor/DocumentText.h"
#include "ui/editor/MarkdownFormatting.h"

#include <QPlainTextEdit>
#include <QPointer>

#include <optional>

namespace cuebright {

class TextViewManager;

/// The plain-text editor of the open edit, which it writes into the store with every change.
///
/// Takes and gives plain text only, and alters nothing but what the user changes. Undo and redo are the text's own and
/// never reach further. Tab types a tab; Shift+Tab, Ctrl+Tab and Ctrl+Shift+Tab leave the editor by the keyboard.
///
/// Overwriting takes the place of exactly one UTF-16 unit, line feeds included, however long what is typed, pasted or
/// dropped; at the end of the text it appends, and a selection is replaced as ever.
///
/// Very long words break anywhere, and beside very long lines characters that the font lacks show as boxes: typing must
/// stay quick.
class MarkdownEditor final : public QPlainTextEdit {
public:
    MarkdownEditor(const UiContext& context, QWidget* parent);

    /// Whose overwrite mode and formatting to follow, and whose text view to be while on screen.
    void setManager(TextViewManager& manager);

    /// Takes the store's text, forgets the text's own history, puts the selection where writing starts, and asks for
    /// the focus once that is possible.
    void open();
    /// Shows the store's text, unless the editor has the focus.
    void refreshText();
    /// Follows the text size and the colours.
    void refreshStyle();

    /// Has an input method finish the word it composes. To be called before an edit ends, or the word is lost.
    static void commitComposition();

    [[nodiscard]] QString text() const;
    [[nodiscard]] TextRange selectedRange() const;
    [[nodiscard]] bool mayChange() const;
    /// As one step of the text's undo.
    void apply(const TextEdit& edit);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
    [[nodiscard]] bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    enum class UndoStep { Own, MayJoinTyping };
    enum class Command;

    [[nodiscard]] static std::optional<Command> commandFor(const QKeyEvent& event);
    void perform(Command command);
    void deleteWord(QTextCursor::MoveOperation direction);
    void wrapSelection(const QString& marker);

    [[nodiscard]] bool overwritesAt(const QTextCursor& cursor) const;
    void insertInput(const QString& input, UndoStep step);
    void setDocumentText(const QString& text);
    void select(TextRange range);
    void writeToStore();
    void limitLayoutTime(QStringView text);

    const UiContext& m_context;
    QPointer<TextViewManager> m_manager;
    DocumentText m_documentText;
    bool m_isUpdating = false;
    bool m_typingStartsNewStep = false; ///< after a step that typing must not join
    bool m_compositionReplacesSelection = false;
    bool m_keepsToOneFont = false;
    PendingTask m_pendingFocus;
};

} // namespace cuebright
