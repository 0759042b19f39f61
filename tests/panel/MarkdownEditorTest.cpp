#include "panel/MarkdownEditor.h"

#include "theme/QtColors.h"

#include "panel/EditorFixture.h"

#include <functional>

namespace cuebright::test {

namespace {

const QString kHigh(QChar(0xd83d));
const QString kLow(QChar(0xde00));

} // namespace

class MarkdownEditorTest : public EditorFixture { };

TEST_F(MarkdownEditorTest, OpensWhereWritingStarts)
{
    const struct {
        const char* text;
        const char* shown;
    } tests[] = {
        {"", "# |"},
        {" \n", "# |"},
        {"# ", "# |"},
        {"# \nnext", "# |\nnext"},
        {"# Title", "# ‹Title›"},
        {"# Title\n\ntext", "# ‹Title›\n\ntext"},
        {"# Title\r\ntext", "# ‹Title\r›\ntext"},
        {"## Title", "|## Title"},
        {"#Title", "|#Title"},
        {" # Title", "| # Title"},
        {"text\n# Title", "|text\n# Title"},
    };
    for (const auto& test : tests) {
        open(test.text);
        EXPECT_EQ(shown(), test.shown);
    }
}

TEST_F(MarkdownEditorTest, OverwritingTakesThePlaceOfOneUnit)
{
    const struct {
        const char* name;
        const char* before;
        std::function<void()> action;
        const char* after;
    } tests[] = {
        {"a letter", "a |cat", [this] { type(QStringLiteral("b")); }, "a b|at"},
        {"letters in turn", "a |cat", [this] { type(QStringLiteral("bo")); }, "a bo|t"},
        {"the line feed", "a|\nb", [this] { type(QStringLiteral("x")); }, "ax|b"},
        {"by a line feed", "a|bc", [this] { press(Qt::Key_Return); }, "a\n|c"},
        {"by a tab", "a|bc", [this] { press(Qt::Key_Tab); }, "a\t|c"},
        {"at the end", "ab|", [this] { type(QStringLiteral("c")); }, "abc|"},
        {"a selection", "a‹bcd›e", [this] { type(QStringLiteral("x")); }, "ax|e"},
        {"deleting", "a|bc", [this] { press(Qt::Key_Delete); }, "a|c"},
        {"deleting backwards", "ab|c", [this] { press(Qt::Key_Backspace); }, "a|c"},
        {"pasting", "a |cat", [this] { paste(QStringLiteral("bcd")); }, "a bcd|at"},
        {"pasting lines", "a |cat", [this] { paste(QStringLiteral("b\r\nc")); }, "a b\nc|at"},
        {"pasting over a selection", "a ‹ca›t", [this] { paste(QStringLiteral("xyz")); }, "a xyz|t"},
        {"dropping", "cat|",
            [this] {
                drop(QStringLiteral("bcd"), {0, 2});
            },
            "bcd|at"},
        {"an input method's word", "|cat", [this] { compose({}, QStringLiteral("日本")); }, "日本|at"},
        {"a composed word", "|cat",
            [this] {
                compose(QStringLiteral("ni"), {});
                compose({}, QStringLiteral("日本"));
            },
            "日本|at"},
        {"a word composed over a selection", "‹ca›ts",
            [this] {
                compose(QStringLiteral("ni"), {});
                compose({}, QStringLiteral("日本"));
            },
            "日本|ts"},
        {"after a composition given up", "‹c›ats",
            [this] {
                compose(QStringLiteral("n"), {});
                compose({}, {});
                compose({}, QStringLiteral("x"));
            },
            "x|ts"},
    };
    for (const auto& test : tests) {
        SCOPED_TRACE(test.name);
        openAt(QString::fromUtf8(test.before));
        const auto original = editor.text();
        manager.setOverwriteMode(true);
        test.action();
        EXPECT_EQ(shown(), test.after);
        while (editor.document()->isUndoAvailable())
            editor.undo();
        EXPECT_EQ(editor.text(), original);
    }
}

TEST_F(MarkdownEditorTest, EachOverwriteIsOneStepOfUndo)
{
    openAt(QStringLiteral("|abc"));
    manager.setOverwriteMode(true);
    type(QStringLiteral("xyzend"));
    EXPECT_EQ(shown(), "xyzend|");
    for (const auto text : {"xyz", "xyc", "xbc", "abc"}) {
        press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(store.editText(), text);
    }
    EXPECT_FALSE(editor.document()->isUndoAvailable());
}

TEST_F(MarkdownEditorTest, OverwritingOutlastsAnEdit)
{
    manager.setOverwriteMode(true);
    openAt(QStringLiteral("|abc"));
    store.saveEdit();
    openAt(QStringLiteral("|abc"));
    type(QStringLiteral("x"));
    EXPECT_EQ(shown(), "x|bc");
}

TEST_F(MarkdownEditorTest, HalfAnOverwrittenPairReachesTheStoreAsAReplacementCharacter)
{
    openAt(QStringLiteral("|😀b"));
    manager.setOverwriteMode(true);
    type(QStringLiteral("x"));
    EXPECT_EQ(editor.text(), QStringLiteral("x") + kLow + QStringLiteral("b"));
    EXPECT_EQ(store.editText(), "x\ufffdb");
    type(QStringLiteral("y"));
    EXPECT_EQ(shown(), "xy|b");
    paste(kHigh + kHigh);
    EXPECT_EQ(store.editText(), "xy\ufffd\ufffd");
}

TEST_F(MarkdownEditorTest, WhatWasNotTypedIsNeverAltered)
{
    using namespace std::string_literals;
    const std::string texts[] = {
        "no\u00a0break",
        "\rreturn\ralone\r",
        "two\r\nof\r\nthem",
        "line\u2028and paragraph\u2029separators",
        "nothing\0here\0"s,
        "object\ufffc",
        "frames\ufdd0and\ufdd1ends",
        "\ufeffmark",
        "controls\u0085\v\f\u001c\u001e",
        "stand-ins\ufff0\ufff1\ufff2\r\u2029\ufdd0",
        "trailing \n\n \t\n",
        "e\u0301 שלום 👩‍👩‍👧",
    };
    for (const auto& text : texts) {
        open(text);
        EXPECT_EQ(editor.text().toStdString(), text);
        select(0, 0);
        type(QStringLiteral("x"));
        EXPECT_EQ(store.editText(), "x" + text);
        manager.wrapSelection(QStringLiteral("**"));
        EXPECT_EQ(store.editText(), "x****" + text);
        while (editor.document()->isUndoAvailable())
            editor.undo();
        EXPECT_EQ(store.editText(), text);
        editor.selectAll();
        manager.wrapSelection(QStringLiteral("*"));
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
    editor.refresh();
    compose(QStringLiteral("ni"), {});
    compose({}, {});
    EXPECT_EQ(writes, 0);
    type(QStringLiteral("x"));
    EXPECT_EQ(writes, 1);
}

TEST_F(MarkdownEditorTest, PastesPlainTextWithLineFeeds)
{
    const struct {
        const char* name;
        QString pasted;
        std::string after;
    } tests[] = {
        {"line ends", QStringLiteral("a\r\nb\rc\u2029d\u2028"), "a\nb\nc\nd\u2028"},
        {"no substitutions", QStringLiteral("\"x\" -- ... (c)"), "\"x\" -- ... (c)"},
        {"no-break space", QStringLiteral("a\u00a0b"), "a\u00a0b"},
        {"frame marks", QStringLiteral("a\ufdd0b\ufdd1"), "a\ufdd0b\ufdd1"},
        {"a stand-in", QStringLiteral("a\ufff0"), "a\ufffd"},
        {"halves of a pair", kLow + kHigh, "\ufffd\ufffd"},
        {"HTML as text", QStringLiteral("<b>x</b>"), "<b>x</b>"},
    };
    for (const auto& test : tests) {
        SCOPED_TRACE(test.name);
        open("# ");
        editor.selectAll();
        paste(test.pasted);
        EXPECT_EQ(store.editText(), test.after);
    }
}

TEST_F(MarkdownEditorTest, TakesOnlyThePlainFormOfWhatIsPasted)
{
    openAt(QStringLiteral("a |"));
    const auto both = new QMimeData;
    both->setHtml(QStringLiteral("<b>bold</b>"));
    both->setText(QStringLiteral("plain"));
    QGuiApplication::clipboard()->setMimeData(both);
    editor.paste();
    EXPECT_EQ(store.editText(), "a plain");
    const auto html = new QMimeData;
    html->setHtml(QStringLiteral("<b>bold</b>"));
    QGuiApplication::clipboard()->setMimeData(html);
    EXPECT_FALSE(editor.canPaste());
    editor.paste();
    EXPECT_EQ(store.editText(), "a plain");
}

TEST_F(MarkdownEditorTest, CopiesPlainTextOnly)
{
    open("a\u00a0b\r\nc\u2028d\n# e");
    editor.selectAll();
    editor.copy();
    const auto copied = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(copied->formats(), QStringList(QStringLiteral("text/plain")));
    EXPECT_EQ(copied->text().toStdString(), "a\u00a0b\nc\u2028d\n# e");
}

TEST_F(MarkdownEditorTest, KeysOfItsOwnAreKeptFromTheMenus)
{
    const struct {
        const char* name;
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char* after;
    } tests[] = {
        {"bold", Qt::Key_B, Qt::ControlModifier, "one **|**two"},
        {"italic", Qt::Key_I, Qt::ControlModifier, "one *|*two"},
        {"word before", Qt::Key_Backspace, Qt::ControlModifier, "|two"},
        {"word after", Qt::Key_Delete, Qt::ControlModifier, "one |"},
        {"nothing to undo", Qt::Key_Z, Qt::ControlModifier, "one |two"},
        {"nothing to redo", Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier, "one |two"},
        {"line break", Qt::Key_Return, Qt::ShiftModifier, "one \n|two"},
        {"tab", Qt::Key_Tab, Qt::NoModifier, "one \t|two"},
        {"page down", Qt::Key_PageDown, Qt::NoModifier, "one |two"},
    };
    for (const auto& test : tests) {
        SCOPED_TRACE(test.name);
        openAt(QStringLiteral("one |two"));
        QKeyEvent offer(QEvent::ShortcutOverride, test.key, test.modifiers);
        offer.ignore();
        QCoreApplication::sendEvent(&editor, &offer);
        EXPECT_TRUE(offer.isAccepted());
        QKeyEvent key(
            QEvent::KeyPress, test.key, test.modifiers, test.key == Qt::Key_Tab ? QStringLiteral("\t") : QString());
        QCoreApplication::sendEvent(&editor, &key);
        EXPECT_TRUE(key.isAccepted());
        EXPECT_EQ(shown(), test.after);
    }
}

TEST_F(MarkdownEditorTest, UndoReachesBackToTheOpeningAndNoFurther)
{
    openAt(QStringLiteral("|b"));
    type(QStringLiteral("a"));
    for (int i = 0; i < 3; ++i)
        press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(store.editText(), "b");
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(store.editText(), "ab");
    store.saveEdit();
    open("next");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(store.editText(), "next");
}

TEST_F(MarkdownEditorTest, EscapeSaves)
{
    openAt(QStringLiteral("|b"));
    type(QStringLiteral("a"));
    press(Qt::Key_Escape);
    EXPECT_FALSE(store.isEditing());
    EXPECT_EQ(store.activeCard()->content, "ab");
}

TEST_F(MarkdownEditorTest, TheKeyboardCanLeave)
{
    QWidget window;
    MarkdownEditor inside(context, &window);
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    window.show();
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        QWidget* focus;
    } tests[] = {
        {Qt::Key_Tab, Qt::NoModifier, &inside},
        {Qt::Key_Backtab, Qt::ShiftModifier, &other},
        {Qt::Key_Tab, Qt::ControlModifier, &other},
        {Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier, &other},
    };
    for (const auto& test : tests) {
        inside.setFocus();
        QTest::keyClick(&inside, test.key, test.modifiers);
        EXPECT_EQ(window.focusWidget(), test.focus) << test.key << test.modifiers;
    }
}

TEST_F(MarkdownEditorTest, ChangesFromOutsideShowOnceTheFocusIsElsewhere)
{
    QWidget window;
    MarkdownEditor inside(context, &window);
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    setCards({"a long text"});
    store.beginEditing();
    inside.open();
    refresh();
    EXPECT_EQ(window.focusWidget(), &inside);
    inside.selectAll();
    store.setEditText("short\r");
    inside.refresh();
    EXPECT_EQ(inside.text(), QStringLiteral("a long text"));
    other.setFocus();
    inside.refresh();
    EXPECT_EQ(inside.text(), QStringLiteral("short\r"));
    EXPECT_EQ(inside.selectedRange(), (TextRange {0, 6}));
}

TEST_F(MarkdownEditorTest, StyleFollowsThePreferencesLive)
{
    open("text");
    editor.resize(200, 100);
    editor.refresh();
    const int before = editor.document()->defaultFont().pixelSize();
    store.increaseFontSize();
    store.setTheme("dark");
    editor.refresh();
    EXPECT_EQ(editor.document()->defaultFont().pixelSize(), static_cast<int>(store.fontSize()));
    EXPECT_GT(editor.document()->defaultFont().pixelSize(), before);
    const auto image = editor.grab().toImage();
    EXPECT_EQ(image.pixelColor(190, 90).name(), toQColor(context.colors().warmBg()).name());
}

TEST_F(MarkdownEditorTest, TheCaretHasTheColourOfTheText)
{
    open("   ");
    editor.resize(200, 100);
    editor.refresh();
    editor.show();
    editor.activateWindow();
    editor.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&editor));
    select(0, 0);
    EXPECT_EQ(editor.grab().toImage().pixelColor(0, 5).name(), toQColor(context.colors().text()).name());
}

TEST_F(MarkdownEditorTest, OverlongWordsMayBreakAnywhere)
{
    const auto word = QString(3000, u'a');
    const auto wrapsAnywhere = [this] { return editor.wordWrapMode() == QTextOption::WrapAnywhere; };
    open(word.toStdString());
    EXPECT_TRUE(wrapsAnywhere());
    open("short " + std::string(100'000, ' ') + QString(3000, u'字').toStdString());
    EXPECT_FALSE(wrapsAnywhere());
    paste(word);
    EXPECT_TRUE(wrapsAnywhere());
    editor.undo();
    editor.redo();
    EXPECT_TRUE(wrapsAnywhere());
    openAt(QString(1500, u'a') + u'|' + QString(1500, u'\u00a0'));
    EXPECT_TRUE(wrapsAnywhere());
    openAt(QString(1500, u'a') + QStringLiteral("‹ ›") + QString(1500, u'a'));
    EXPECT_FALSE(wrapsAnywhere());
    press(Qt::Key_Delete);
    EXPECT_TRUE(wrapsAnywhere());
    openAt(QStringLiteral("|"));
    drop(word, {0, 2});
    EXPECT_TRUE(wrapsAnywhere());
    EXPECT_EQ(editor.text().size(), word.size() + 2);
}

TEST_F(MarkdownEditorTest, OverlongLinesKeepToOneFont)
{
    const auto line = QString(11'000, u'a');
    const auto keepsToOneFont = [this] {
        return (editor.document()->defaultFont().styleStrategy() & QFont::NoFontMerging) != 0;
    };
    openAt(QStringLiteral("|"));
    paste(line);
    EXPECT_TRUE(keepsToOneFont());
    store.increaseFontSize();
    editor.refresh();
    EXPECT_TRUE(keepsToOneFont());
    open(std::string(9'000, 'a') + "\n" + std::string(9'000, 'a'));
    EXPECT_FALSE(keepsToOneFont());
}

} // namespace cuebright::test
