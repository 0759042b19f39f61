#include "ui/editor/MarkdownEditor.h"

#include "platform/qt/QtColors.h"

#include "ui/editor/EditorFixture.h"

#include <functional>
#include <tuple>

namespace cuebright::test {

namespace {

constexpr auto kControl = Qt::ControlModifier;
constexpr auto kControlShift = Qt::ControlModifier | Qt::ShiftModifier;

} // namespace

class MarkdownEditorTest : public EditorFixture {
protected:
    /// An editor beside another focusable widget.
    QWidget window;
    MarkdownEditor inside {context, &window};
    QWidget other {&window};

    MarkdownEditorTest() { other.setFocusPolicy(Qt::StrongFocus); }
};

TEST_F(MarkdownEditorTest, OpensWhereWritingStarts)
{
    const std::pair<const char*, const char*> tests[] = {{"", "# |"}, {" \n", "# |"}, {"# ", "# |"},
        {"# \nnext", "# |\nnext"}, {"# Title", "# ‹Title›"}, {"# Title\n\ntext", "# ‹Title›\n\ntext"},
        {"# Title\r\ntext", "# ‹Title\r›\ntext"}, {"## Title", "|## Title"}, {"#Title", "|#Title"},
        {" # Title", "| # Title"}, {"text\n# Title", "|text\n# Title"}};
    for (const auto& [text, expected] : tests) {
        open(text);
        EXPECT_EQ(shown(), expected);
    }
}

TEST_F(MarkdownEditorTest, WhatWasNotTypedIsNeverAltered)
{
    using namespace std::string_literals;
    const std::string texts[] = {"no\u00a0break", "\rreturn\ralone\r", "two\r\nof\r\nthem",
        "line\u2028and paragraph\u2029separators", "nothing\0here\0"s, "object\ufffc", "frames\ufdd0and\ufdd1ends",
        "\ufeffmark", "controls\u0085\v\f\u001c\u001e", "stand-ins\ufff0\ufff1\ufff2\r\u2029\ufdd0",
        "trailing \n\n \t\n", "e\u0301 שלום 👩‍👩‍👧"};
    for (const auto& text : texts) {
        open(text);
        EXPECT_EQ(editor.text().toStdString(), text);
        select(0, 0);
        type(u"x"_s);
        EXPECT_EQ(store.editText(), "x" + text);
        manager.wrapSelection(u"**"_s);
        EXPECT_EQ(store.editText(), "x****" + text);
        undoAll();
        EXPECT_EQ(store.editText(), text);
        editor.selectAll();
        manager.wrapSelection(u"*"_s);
        EXPECT_EQ(store.editText(), "*" + text + "*");
    }
}

TEST_F(MarkdownEditorTest, OpeningAndStylingWriteNothing)
{
    setCards({"a\r\nb\u00a0"});
    store.beginEditing();
    int writes = 0;
    const auto subscription = store.willChange.subscribe(
        [&](const Change& change) { writes += change.property == Change::Property::EditText ? 1 : 0; });
    editor.open();
    editor.show();
    store.increaseFontSize();
    store.setTheme("dark");
    editor.refreshStyle();
    compose(u"ni"_s, {});
    compose({}, {});
    EXPECT_EQ(writes, 0);
    type(u"x"_s);
    EXPECT_EQ(writes, 1);
}

TEST_F(MarkdownEditorTest, FocusLeavesByKeyboard)
{
    window.show();
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, QWidget*> tests[] = {{Qt::Key_Tab, Qt::NoModifier, &inside},
        {Qt::Key_Backtab, Qt::ShiftModifier, &other}, {Qt::Key_Tab, kControl, &other},
        {Qt::Key_Backtab, kControlShift, &other}};
    for (const auto& [key, modifiers, focus] : tests) {
        inside.setFocus();
        QTest::keyClick(&inside, key, modifiers);
        EXPECT_EQ(window.focusWidget(), focus) << key << modifiers;
    }
}

TEST_F(MarkdownEditorTest, ChangesFromOutsideShowOnceTheFocusIsElsewhere)
{
    activate(window);
    setCards({"a long text"});
    store.beginEditing();
    inside.open();
    refresh();
    EXPECT_EQ(window.focusWidget(), &inside);
    inside.moveCursor(QTextCursor::Right);
    inside.moveCursor(QTextCursor::End, QTextCursor::KeepAnchor);
    store.setEditText("short\r");
    inside.refreshText();
    EXPECT_EQ(inside.text(), u"a long text"_s);
    other.setFocus();
    EXPECT_EQ(inside.text(), u"short\r"_s);
    EXPECT_EQ(inside.selectedRange(), (TextRange {1, 5}));
}

TEST_F(MarkdownEditorTest, OverlongWordsMayBreakAnywhere)
{
    const auto word = QString(3000, u'a');
    const auto half = QString(1500, u'a');
    const std::tuple<QString, std::function<void()>, bool> tests[] = {
        {word + u'|', [] {}, true},
        {u"|short "_s + QString(100'000, u' ') + QString(3000, u'字'), [] {}, false},
        {u"|short"_s, [&] { paste(word); }, true},
        {u"|short"_s, [&] { paste(word), editor.undo(), editor.redo(); }, true},
        {half + u'|' + QString(1500, u'\u00a0'), [] {}, true},
        {half + u"‹ ›"_s + half, [] {}, false},
        {half + u"‹ ›"_s + half, [&] { press(Qt::Key_Delete); }, true},
        {u"|"_s, [&] { drop(word, QPointF(0, 2)); }, true},
    };
    for (const auto& [text, action, wrapsAnywhere] : tests) {
        openAt(text);
        action();
        EXPECT_EQ(editor.wordWrapMode() == QTextOption::WrapAnywhere, wrapsAnywhere) << text.left(20).toStdString();
    }
    EXPECT_EQ(editor.text().size(), word.size() + 2);
}

} // namespace cuebright::test
