#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

namespace cuebright {

class MarkdownEditor;
struct TextEdit;

/// The formatting operations on the open editor, and its overwrite mode.
///
/// Each operation is one undo step of the editor; without a text view it does nothing. Wrapping always adds markers.
class TextViewManager final : public QObject {
public:
    using QObject::QObject;

    [[nodiscard]] MarkdownEditor* textView() const; ///< null while no editor is visible
    void setTextView(MarkdownEditor* textView);

    /// Kept across edits.
    [[nodiscard]] bool isOverwriteMode() const { return m_isOverwriteMode; }
    void setOverwriteMode(bool isOverwriteMode) { m_isOverwriteMode = isOverwriteMode; }

    void wrapSelection(const QString& marker);
    void insertLink();
    void toggleLinePrefix(const QString& prefix);

private:
    template <typename Make> void apply(Make make);

    QPointer<MarkdownEditor> m_textView;
    bool m_isOverwriteMode = false;
};

} // namespace cuebright
