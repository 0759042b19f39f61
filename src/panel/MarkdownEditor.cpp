#include "panel/MarkdownEditor.h"

#include "panel/TextConversion.h"
#include "store/CardStore.h"
#include "theme/Fonts.h"
#include "theme/QtColors.h"

#include <QTextDocument>

namespace cuebright {

namespace {

const auto kHeadingPrefix = QStringLiteral("# ");

} // namespace

MarkdownEditor::MarkdownEditor(const PanelContext& context, QWidget* parent)
    : QPlainTextEdit(parent)
    , m_context(context)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabChangesFocus(false);
    setAccessibleName(QStringLiteral("Card text"));
    document()->setDocumentMargin(0);
    connect(this, &QPlainTextEdit::textChanged, this, &MarkdownEditor::writeToStore);
}

void MarkdownEditor::open()
{
    m_isUpdating = true;
    setPlainText(toQString(m_context.store.editText()));
    m_isUpdating = false;
    const auto text = document()->toRawText();
    auto cursor = textCursor();
    if (text.startsWith(kHeadingPrefix)) {
        cursor.setPosition(static_cast<int>(kHeadingPrefix.size()));
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    }
    setTextCursor(cursor);
    ensureCursorVisible();
}

void MarkdownEditor::refreshStyle()
{
    setFont(systemFont(m_context.store.fontSize()));
    const auto colors = m_context.colors();
    auto style = palette();
    style.setColor(QPalette::Base, toQColor(colors.warmBg()));
    style.setColor(QPalette::Text, toQColor(colors.text()));
    setPalette(style);
}

void MarkdownEditor::writeToStore()
{
    if (m_isUpdating || !m_context.store.isEditing())
        return;
    // The raw text: the plain one has a blank where the card has a no-break space.
    m_context.store.setEditText(toUtf8(document()->toRawText().replace(QChar::ParagraphSeparator, QLatin1Char('\n'))));
}

} // namespace cuebright
