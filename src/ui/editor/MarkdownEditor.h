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

/// The plain-text editor of the open edit. Every change is written to the store.
///
/// Undo and redo are limited to the editor's text. Tab inserts a tab; Shift+Tab, Ctrl+Tab and Ctrl+Shift+Tab move the
/// focus.
///
/// In overwrite mode, input of any length replaces exactly one UTF-16 unit, which may be a line feed; at the end of the
/// text it appends. A selection is replaced as usual.
///
/// To keep typing fast, very long words may break anywhere, and documents with very long lines get no font fallback
/// (missing glyphs show as boxes).
class MarkdownEditor final : public QPlainTextEdit {
public:
    MarkdownEditor(const UiContext& context, QWidget* parent);

    /// The source of overwrite mode and formatting; its text view is this editor while that is visible.
    void setManager(TextViewManager& manager);

    /// Loads the store's text, clears the undo history, sets the initial selection, and takes the focus after the
    /// current event.
    void open();
    /// Shows the store's text, unless the editor has the focus.
    void refreshText();
    /// Follows the text size and the colours.
    void refreshStyle();

    /// Commits the input method's composition. Call before an edit ends, otherwise the composed word is lost.
    static void commitComposition();

    [[nodiscard]] QString text() const;
    [[nodiscard]] TextRange selectedRange() const;
    [[nodiscard]] bool mayChange() const;
    /// Applies `edit` as one undo step.
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
    bool m_typingStartsNewStep = false; ///< typing must not join the last step
    bool m_compositionReplacesSelection = false;
    bool m_hasNoFontFallback = false;
    PendingTask m_pendingFocus;
};

} // namespace cuebright
