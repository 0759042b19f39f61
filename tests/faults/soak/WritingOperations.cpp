#include "Operations.h"
#include "platform/qt/TextConversion.h"
#include "store/CardStore.h"

#include <algorithm>

namespace cuebright::soak {

namespace {

constexpr auto kCommand = Qt::ControlModifier;

bool isOpen(const Model& model) { return model.isShown && model.sheet == Model::Sheet::None && model.isEditing; }

bool isWriting(const Model& model) { return isOpen(model) && model.editor.hasFocus; }

bool hasSelection(const Model& model) { return isWriting(model) && model.editor.start != model.editor.end; }

/// The text's own while writing, which gives back a text that was there before, else the store's, which rests while a
/// sheet waits for its answer.
void undoOrRedo(Soak& soak)
{
    auto& [program, model, random, detail] = soak;
    auto& editor = model.editor;
    const bool isUndo = random.oneIn(2);
    const bool isSheet = model.sheet != Model::Sheet::None;
    const bool isByKey = model.isShown && !isSheet && random.oneIn(2);
    detail = std::string(isUndo ? "undo" : "redo") + (isByKey ? " by key" : "");
    if (isByKey)
        program.key(Qt::Key_Z, isUndo ? kCommand : kCommand | Qt::ShiftModifier);
    else
        program.trigger(isUndo ? "Undo" : "Redo");
    if (isSheet)
        return;
    if (!model.isEditing)
        return isUndo ? model.undo() : model.redo();
    editor.isSelectionKnown = false;
    const auto after = program.editor()->text();
    // A letter that had taken the place of the same one may have gone, which is a change by the user too.
    const bool mayBeSame = std::adjacent_find(editor.history.begin(), editor.history.end()) != editor.history.end();
    const bool mustUndo = isUndo && model.isShown && editor.hasFocus && editor.text != editor.history.front();
    if (after == editor.text && (mayBeSame || !mustUndo)) {
        if (program.store().editText() == toUtf8(editor.text))
            model.takeTyped();
        return;
    }
    const bool wasThere = std::find(editor.history.begin(), editor.history.end(), after) != editor.history.end();
    editor.text = wasThere && after != editor.text ? after : QStringLiteral("(a text that was there before)");
    model.takeTyped();
}

void type(Soak& soak)
{
    soak.detail = soak.random.oddText(3);
    for (const auto c : toQString(soak.detail)) {
        if (!c.isPrint() && c != u'\n' && c != u'\t')
            continue;
        if (c.isPrint())
            soak.program.type(c);
        else
            soak.program.key(c == u'\n' ? Qt::Key_Return : Qt::Key_Tab);
        soak.model.editor.input(c);
        soak.model.takeTyped();
    }
}

/// With a selection; how far it goes from a caret is the toolkit's.
void erase(Soak& soak)
{
    soak.program.key(soak.random.oneIn(2) ? Qt::Key_Delete : Qt::Key_Backspace);
    soak.model.editor.input({});
    soak.model.takeTyped();
}

void select(Soak& soak)
{
    const auto size = static_cast<int>(soak.model.editor.text.size());
    auto cursor = soak.program.editor()->textCursor();
    cursor.setPosition(soak.random.below(size + 1));
    if (soak.random.oneIn(2))
        cursor.setPosition(soak.random.below(size + 1), QTextCursor::KeepAnchor);
    soak.program.editor()->setTextCursor(cursor);
    soak.model.editor.select(cursor.selectionStart(), cursor.selectionEnd());
}

void leaveOrReturn(Soak& soak)
{
    auto& hasFocus = soak.model.editor.hasFocus;
    if (hasFocus)
        soak.program.key(Qt::Key_Tab, kCommand);
    else
        soak.program.editor()->setFocus();
    hasFocus = !hasFocus;
}

} // namespace

std::vector<Operation> writingOperations()
{
    return {{"undo or redo what is shown", 24, [](const Model&) { return true; }, undoOrRedo},
        {"leave the text or return", 6, isOpen, leaveOrReturn}, {"type", 70, isWriting, type},
        {"erase", 20, hasSelection, erase}, {"select", 25, isWriting, select}};
}

} // namespace cuebright::soak
