#include "ui/editor/TextViewManager.h"

#include "ui/editor/MarkdownToolbar.h"

#include "ui/editor/EditorFixture.h"

namespace cuebright::test {

namespace {

struct FormattingCase {
    const char* name;
    const char* before;
    std::function<void(TextViewManager&)> operation;
    const char* after;
};

auto wrap(const char* marker)
{
    return [marker](TextViewManager& manager) { manager.wrapSelection(QString::fromUtf8(marker)); };
}

auto prefix(const char* text)
{
    return [text](TextViewManager& manager) { manager.toggleLinePrefix(QString::fromUtf8(text)); };
}

void link(TextViewManager& manager) { manager.insertLink(); }

const FormattingCase kFormattingCases[] = {
    {"bold at the caret", "Hello|", wrap("**"), "Hello**|**"},
    {"bold inside", "Hel|lo", wrap("**"), "Hel**|**lo"},
    {"italic", "a ‹bc› d", wrap("*"), "a ‹*bc*› d"},
    {"code over two lines", "a ‹b\nc› d", wrap("`"), "a ‹`b\nc`› d"},
    {"a family counts as one", "‹👩‍👩‍👧›", wrap("*"), "‹*👩›‍👩‍👧*"},
    {"so does a line end of two", "‹a\r\nb›c", wrap("**"), "‹**a\r\nb*›*c"},
    {"link at the caret", "a|b", link, "a[‹link text›](url)b"},
    {"link of a word", "a ‹word› b", link, "a [word](‹url›) b"},
    {"link of an emoji", "‹😀›", link, "[😀]‹(ur›l)"},
    {"prefix for a line", "one\ntw|o\nthree", prefix("> "), "one\n> tw|o\nthree"},
    {"prefix away again", "one\n> tw|o\nthree", prefix("> "), "one\ntw|o\nthree"},
    {"prefix at a line's start", "one\n|two", prefix("# "), "one\n# |two"},
    {"prefix for an empty last line", "one\n|", prefix("1. "), "one\n1. |"},
    {"prefix away before the caret's place", "|# x", prefix("# "), "|x"},
    {"prefix away from the line below", "abc\n|# x", prefix("# "), "ab|c\nx"},
    {"only the first selected line", "a‹b\nc›d", prefix("- "), "- a|b\ncd"},
    {"a return alone ends no line", "a\rb|c", prefix("> "), "> a\rb|c"},
};

} // namespace

class TextViewManagerTest : public EditorFixture { };

TEST_F(TextViewManagerTest, OperationsChangeTheTextAndTheSelection)
{
    for (const auto& test : kFormattingCases) {
        SCOPED_TRACE(test.name);
        openAt(QString::fromUtf8(test.before));
        test.operation(manager);
        EXPECT_EQ(shown(), test.after);
    }
}

TEST_F(TextViewManagerTest, EachOperationIsOneStepOfUndoApartFromTyping)
{
    for (const auto& test : kFormattingCases) {
        SCOPED_TRACE(test.name);
        open("");
        type(u"ab"_s);
        QStringList texts {u"# "_s, editor.text()};
        test.operation(manager);
        texts << editor.text();
        type(u"cd"_s);
        texts << editor.text();
        for (const int text : {2, 1, 0}) {
            editor.undo();
            EXPECT_EQ(editor.text(), texts[text]);
        }
        for (const int text : {1, 2, 3}) {
            editor.redo();
            EXPECT_EQ(editor.text(), texts[text]);
        }
    }
}

TEST_F(TextViewManagerTest, ToolbarButtonsFormat)
{
    MarkdownToolbar toolbar(context, manager, nullptr);
    const std::pair<QString, const char*> tests[] = {{u"Bold (⌘B)"_s, "a ‹**bc**›"}, {u"Italic (⌘I)"_s, "a ‹*bc*›"},
        {u"Heading"_s, "# a |bc"}, {u"Bullet list"_s, "- a |bc"}, {u"Numbered list"_s, "1. a |bc"},
        {u"Inline code"_s, "a ‹`bc`›"}, {u"Link"_s, "a [bc](‹url›)"}, {u"Blockquote"_s, "> a |bc"}};
    for (const auto& [name, after] : tests) {
        openAt(u"a ‹bc›"_s);
        PanelFixture::press(toolbar, name);
        EXPECT_EQ(shown(), after);
        EXPECT_EQ(find(toolbar, name)->toolTip(), name);
    }
}

} // namespace cuebright::test
