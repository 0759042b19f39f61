#pragma once

#include "platform/qt/TextConversion.h"
#include "ui/editor/MarkdownEditor.h"
#include "ui/editor/TextViewManager.h"

#include "ui/panel/PanelFixture.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>

namespace cuebright::test {

/// An open edit. Texts show the caret as "|" or the selection in "‹›".
class EditorFixture : public PanelFixture {
protected:
    TextViewManager manager;
    MarkdownEditor editor {context, nullptr};

    EditorFixture() { editor.setManager(manager); }

    /// Opens an edit of a card with this text.
    void open(const std::string& content)
    {
        store.cancelEdit();
        setCards({content});
        store.beginEditing();
        editor.open();
    }
    void openAt(const QString& marked)
    {
        const bool isCaret = marked.contains(u'|');
        const auto start = marked.indexOf(isCaret ? u'|' : u'‹');
        const auto end = isCaret ? start : marked.indexOf(u'›') - 1;
        auto text = marked;
        open(text.remove(isCaret ? u'|' : u'‹').remove(u'›').toStdString());
        select(start, end);
    }
    void select(qsizetype start, qsizetype end)
    {
        auto cursor = editor.textCursor();
        cursor.setPosition(static_cast<int>(start));
        cursor.setPosition(static_cast<int>(end), QTextCursor::KeepAnchor);
        editor.setTextCursor(cursor);
    }

    /// The text with its selection; checks that the store has the same text.
    std::string shown()
    {
        auto text = editor.text();
        EXPECT_EQ(toUtf8(text), store.editText());
        const auto range = editor.selectedRange();
        if (range.length == 0)
            return toUtf8(text.insert(range.location, u'|'));
        return toUtf8(text.insert(range.location + range.length, u'›').insert(range.location, u'‹'));
    }

    void type(const QString& text) { QTest::keyClicks(&editor, text); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&editor, key, modifiers); }
    void undoAll()
    {
        while (editor.document()->isUndoAvailable())
            editor.undo();
    }
    void compose(const QString& preedit, const QString& committed)
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(committed);
        QCoreApplication::sendEvent(&editor, &event);
    }
    void paste(const QString& text)
    {
        QGuiApplication::clipboard()->setText(text);
        editor.paste();
    }
    void drop(const QString& text, const QPointF& place)
    {
        QMimeData data;
        data.setText(text);
        QDragEnterEvent enter(place.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(editor.viewport(), &enter);
        QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(editor.viewport(), &event);
    }
};

} // namespace cuebright::test
