#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

namespace cuebright {

class MarkdownEditor;
struct TextEdit;

/// The live text being edited, for those who format it, and the switch between inserting and overwriting.
///
/// Each formatting operation is one step of the text's own undo; without a text view it does nothing. Wrapping looks
/// for no markers that are there already.
class TextViewManager final : public QObject {
public:
    using QObject::QObject;

    [[nodiscard]] MarkdownEditor* textView() const; ///< null while no editor is on screen
    void setTextView(MarkdownEditor* textView);

    /// Survives the end of an edit.
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
