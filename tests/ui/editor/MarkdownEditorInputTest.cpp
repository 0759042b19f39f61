#include "ui/editor/EditorFixture.h"

#include <functional>
#include <tuple>

namespace cuebright::test {

namespace {

const QString kHigh(QChar(0xd83d));
const QString kLow(QChar(0xde00));
constexpr auto kControl = Qt::ControlModifier;
constexpr auto kControlShift = Qt::ControlModifier | Qt::ShiftModifier;

using MarkdownEditorInputTest = EditorFixture;

} // namespace

TEST_F(MarkdownEditorInputTest, OverwritingTakesThePlaceOfOneUnitAndOutlastsEveryEdit)
{
    const std::tuple<const char*, QString, std::function<void()>, const char*> tests[] = {
        {"a letter", u"a |cat"_s, [&] { type(u"b"_s); }, "a b|at"},
        {"the line feed", u"a|\nb"_s, [&] { type(u"x"_s); }, "ax|b"},
        {"by a line feed", u"a|bc"_s, [&] { press(Qt::Key_Return); }, "a\n|c"},
        {"at the end", u"ab|"_s, [&] { type(u"c"_s); }, "abc|"},
        {"a selection", u"a‹bcd›e"_s, [&] { type(u"x"_s); }, "ax|e"},
        {"deleting", u"a|bc"_s, [&] { press(Qt::Key_Delete); }, "a|c"},
        {"pasting lines", u"a |cat"_s, [&] { paste(u"b\r\nc"_s); }, "a b\nc|at"},
        {"pasting over a selection", u"a ‹ca›t"_s, [&] { paste(u"xyz"_s); }, "a xyz|t"},
        {"dropping", u"cat|"_s, [&] { drop(u"bcd"_s, QPointF(0, 2)); }, "bcd|at"},
        {"a composed word", u"|cat"_s, [&] { compose(u"ni"_s, {}), compose({}, u"日本"_s); }, "日本|at"},
        {"a word composed over a selection", u"‹ca›ts"_s, [&] { compose(u"ni"_s, {}), compose({}, u"日本"_s); },
            "日本|ts"},
        {"after a composition given up", u"‹c›ats"_s,
            [&] { compose(u"n"_s, {}), compose({}, {}), compose({}, u"x"_s); }, "x|ts"},
    };
    manager.setOverwriteMode(true);
    for (const auto& [name, before, action, after] : tests) {
        SCOPED_TRACE(name);
        openAt(before);
        const auto original = editor.text();
        action();
        EXPECT_EQ(shown(), after);
        undoAll();
        EXPECT_EQ(editor.text(), original);
        store.saveEdit();
    }
}

TEST_F(MarkdownEditorInputTest, HalfAnOverwrittenPairReachesTheStoreAsAReplacementCharacter)
{
    openAt(u"|😀b"_s);
    manager.setOverwriteMode(true);
    type(u"x"_s);
    EXPECT_EQ(editor.text(), u"x"_s + kLow + u"b"_s);
    EXPECT_EQ(store.editText(), "x\ufffdb");
    type(u"y"_s);
    EXPECT_EQ(shown(), "xy|b");
    paste(kHigh + kHigh);
    EXPECT_EQ(store.editText(), "xy\ufffd\ufffd");
}

TEST_F(MarkdownEditorInputTest, PastesPlainTextWithLineFeeds)
{
    const std::tuple<const char*, QString, const char*> tests[] = {
        {"line ends", u"a\r\nb\rc\u2029d\u2028"_s, "a\nb\nc\nd\u2028"},
        {"frame marks", u"a\ufdd0b\ufdd1"_s, "a\ufdd0b\ufdd1"},
        {"a stand-in", u"a\ufff0"_s, "a\ufffd"},
        {"halves of a pair", kLow + kHigh, "\ufffd\ufffd"},
        {"HTML as text", u"<b>x</b>"_s, "<b>x</b>"},
    };
    for (const auto& [name, pasted, after] : tests) {
        open("# ");
        editor.selectAll();
        paste(pasted);
        EXPECT_EQ(store.editText(), after) << name;
    }
}

TEST_F(MarkdownEditorInputTest, CopiesPlainTextOnly)
{
    open("a\u00a0b\r\nc\u2028d\n# e");
    editor.selectAll();
    editor.copy();
    const auto copied = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(copied->formats(), QStringList(u"text/plain"_s));
    EXPECT_EQ(copied->text().toStdString(), "a\u00a0b\nc\u2028d\n# e");
}

TEST_F(MarkdownEditorInputTest, KeysOfItsOwnAreKeptFromTheMenus)
{
    const std::tuple<const char*, Qt::Key, Qt::KeyboardModifiers, const char*> tests[] = {
        {"bold", Qt::Key_B, kControl, "one **|**two"},
        {"italic", Qt::Key_I, kControl, "one *|*two"},
        {"word before", Qt::Key_Backspace, kControl, "|two"},
        {"nothing to undo", Qt::Key_Z, kControl, "one |two"},
        {"line break", Qt::Key_Return, Qt::ShiftModifier, "one \n|two"},
        {"tab", Qt::Key_Tab, Qt::NoModifier, "one \t|two"},
    };
    for (const auto& [name, key, modifiers, after] : tests) {
        openAt(u"one |two"_s);
        QKeyEvent offer(QEvent::ShortcutOverride, key, modifiers);
        offer.ignore();
        QCoreApplication::sendEvent(&editor, &offer);
        QKeyEvent press(QEvent::KeyPress, key, modifiers, key == Qt::Key_Tab ? u"\t"_s : QString());
        QCoreApplication::sendEvent(&editor, &press);
        EXPECT_TRUE(offer.isAccepted() && press.isAccepted()) << name;
        EXPECT_EQ(shown(), after) << name;
    }
}

TEST_F(MarkdownEditorInputTest, UndoReachesBackToTheOpeningAndNoFurtherAndEscapeSaves)
{
    openAt(u"|b"_s);
    type(u"a"_s);
    for (int i = 0; i < 3; ++i)
        press(Qt::Key_Z, kControl);
    EXPECT_EQ(store.editText(), "b");
    press(Qt::Key_Z, kControlShift);
    press(Qt::Key_Escape);
    EXPECT_EQ(store.activeCard()->content, "ab");
}

} // namespace cuebright::test
