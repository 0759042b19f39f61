#include "ui/editor/MarkdownEditor.h"

#include "platform/qt/QtColors.h"
#include "platform/qt/TextConversion.h"
#include "store/CardStore.h"
#include "ui/base/Fonts.h"
#include "ui/editor/TextViewManager.h"
#include "ui/widgets/SlimScrollBar.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QPainter>
#include <QScrollBar>
#include <QTextDocument>

#include <algorithm>
#include <utility>

namespace cuebright {

namespace {

constexpr int kCaretWidth = 2;
constexpr int kTabWidth = 4; ///< in spaces

/// Qt 6.4 finds word boundaries in quadratic time: 57 s for a word of 1 MB.
constexpr int kLongestWord = 2000;
/// Font fallback in Qt 6.4 takes 1 s per 100 KB of emoji in one line.
constexpr int kLongestLineWithFontFallback = 10'000;

/// Whether a line can break after the character: spaces, ideographs and Hangul.
bool isBreakable(QChar c)
{
    const bool isIdeograph = c.unicode() >= 0x4e00 && c.unicode() <= 0x9fff;
    const bool isHangulSyllable = c.unicode() >= 0xac00 && c.unicode() <= 0xd7a3;
    return (c.isSpace() && c != QChar::Nbsp) || isIdeograph || isHangulSyllable;
}

template <typename IsEnd> bool hasRunOver(qsizetype limit, QStringView text, IsEnd isEnd)
{
    qsizetype length = 0;
    return std::any_of(text.begin(), text.end(), [&](QChar c) {
        length = isEnd(c) ? 0 : length + 1;
        return length > limit;
    });
}

} // namespace

MarkdownEditor::MarkdownEditor(const UiContext& context, QWidget* parent)
    : QPlainTextEdit(parent)
    , m_context(context)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    makeSlim(*verticalScrollBar());
    setAccessibleName(QStringLiteral("Card text"));
    setInputMethodHints(Qt::ImhMultiLine);
    setCursorWidth(kCaretWidth);
    document()->setDocumentMargin(0);
    connect(this, &QPlainTextEdit::textChanged, this, &MarkdownEditor::writeToStore);
}

void MarkdownEditor::setManager(TextViewManager& manager) { m_manager = &manager; }

void MarkdownEditor::open()
{
    setDocumentText(toQString(m_context.store.editText()));
    select(initialSelection(text()));
    if (m_manager)
        m_manager->setTextView(this);
    m_pendingFocus = m_context.platform.mainQueue.post([this] {
        if (!m_context.store.isEditing())
            return;
        setFocus(Qt::OtherFocusReason);
        ensureCursorVisible();
    });
}

void MarkdownEditor::refreshText()
{
    const auto& store = m_context.store;
    if (!store.isEditing() || !isVisibleTo(window()) || window()->focusWidget() == this
        || store.editText() == toUtf8(text()))
        return;
    const auto remembered = selectedRange();
    const auto newText = toQString(store.editText());
    const auto length = static_cast<int>(newText.size());
    setDocumentText(newText);
    const int location = std::min(remembered.location, length);
    select({location, std::min(remembered.length, length - location)});
}

void MarkdownEditor::refreshStyle()
{
    auto newFont = systemFont(m_context.store.fontSize());
    if (m_hasNoFontFallback)
        newFont.setStyleStrategy(QFont::NoFontMerging);
    if (newFont != document()->defaultFont()) {
        setFont(newFont);
        setTabStopDistance(kTabWidth * QFontMetricsF(newFont).horizontalAdvance(QLatin1Char(' ')));
    }
    const auto colors = m_context.colors();
    auto style = palette();
    style.setColor(QPalette::Base, toQColor(colors.warmBg()));
    style.setColor(QPalette::Text, toQColor(colors.text()));
    setPalette(style);
}

void MarkdownEditor::commitComposition() { QGuiApplication::inputMethod()->commit(); }

QString MarkdownEditor::text() const { return m_documentText.decoded(document()->toRawText()); }

TextRange MarkdownEditor::selectedRange() const
{
    const auto cursor = textCursor();
    return {cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()};
}

bool MarkdownEditor::mayChange() const { return !isReadOnly() && m_context.store.isEditing(); }

void MarkdownEditor::apply(const TextEdit& edit)
{
    auto cursor = textCursor();
    cursor.setPosition(edit.range.location);
    cursor.setPosition(edit.range.location + edit.range.length, QTextCursor::KeepAnchor);
    cursor.beginEditBlock();
    cursor.insertText(m_documentText.encoded(edit.replacement));
    cursor.endEditBlock();
    m_typingStartsNewStep = true;
    select(edit.selection);
}

void MarkdownEditor::showEvent(QShowEvent* event)
{
    QPlainTextEdit::showEvent(event);
    if (m_manager && m_context.store.isEditing())
        m_manager->setTextView(this);
}

void MarkdownEditor::focusOutEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusOutEvent(event);
    refreshText(); // the text was not updated while the editor had focus
}

void MarkdownEditor::hideEvent(QHideEvent* event)
{
    QPlainTextEdit::hideEvent(event);
    if (m_manager && m_manager->textView() == this)
        m_manager->setTextView(nullptr);
}

/// Draws the caret in the text colour. Qt 6.4 inverts the pixels below it.
void MarkdownEditor::paintEvent(QPaintEvent* event)
{
    QPlainTextEdit::paintEvent(event);
    const int position = getPaintContext().cursorPosition;
    if (position == -1)
        return;
    auto cursor = textCursor();
    if (position >= 0)
        cursor.setPosition(std::min(position, document()->characterCount() - 1)); // the drop position
    QPainter(viewport()).fillRect(cursorRect(cursor), palette().color(QPalette::Text));
}

void MarkdownEditor::setDocumentText(const QString& text)
{
    m_isUpdating = true;
    m_documentText = DocumentText(text);
    m_typingStartsNewStep = false;
    m_compositionReplacesSelection = false;
    clear();
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_hasNoFontFallback = false;
    refreshStyle();
    limitLayoutTime(text);
    setPlainText(m_documentText.encoded(text));
    m_isUpdating = false;
}

void MarkdownEditor::select(TextRange range)
{
    auto cursor = textCursor();
    cursor.setPosition(range.location);
    cursor.setPosition(range.location + range.length, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    ensureCursorVisible();
}

void MarkdownEditor::writeToStore()
{
    if (m_isUpdating || !m_context.store.isEditing())
        return;
    const auto newText = text();
    limitLayoutTime(newText);
    auto utf8 = toUtf8(newText);
    // textChanged is also emitted for format-only changes.
    if (utf8 != m_context.store.editText())
        m_context.store.setEditText(std::move(utf8));
}

/// Limits stay in force until the next setDocumentText(), since undo may bring a long line back.
void MarkdownEditor::limitLayoutTime(QStringView text)
{
    if (wordWrapMode() != QTextOption::WrapAnywhere && hasRunOver(kLongestWord, text, isBreakable))
        setWordWrapMode(QTextOption::WrapAnywhere);
    const auto endsLine = [](QChar c) { return c == QLatin1Char('\n'); };
    if (!m_hasNoFontFallback && hasRunOver(kLongestLineWithFontFallback, text, endsLine)) {
        m_hasNoFontFallback = true;
        refreshStyle();
    }
}

} // namespace cuebright
