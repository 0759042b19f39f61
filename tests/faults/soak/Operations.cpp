#include "Operations.h"

#include "platform/qt/TextConversion.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <array>
#include <cmath>
#include <limits>

namespace cuebright::soak {

namespace {

constexpr auto kCommand = Qt::ControlModifier;
constexpr auto kCommandShift = Qt::ControlModifier | Qt::ShiftModifier;
constexpr auto kCommandOption = Qt::ControlModifier | Qt::AltModifier;
constexpr auto kLeast = std::numeric_limits<std::int64_t>::min();
constexpr auto kMost = std::numeric_limits<std::int64_t>::max();

bool always(Program&) { return true; }

Loss chooseFromMenus(Soak& soak)
{
    constexpr std::pair<const char*, Loss> kItems[] = {{"New Card", Loss::Nothing}, {"Delete Card", Loss::Nothing},
        {"New Deck", Loss::Nothing}, {"Delete Deck", Loss::OneDeck}, {"Rename Deck…", Loss::Nothing},
        {"Save Card", Loss::Nothing}, {"Cancel Edit", Loss::TypedText}, {"Move Card Up", Loss::Nothing},
        {"Move Card Down", Loss::Nothing}, {"Dark", Loss::Nothing}, {"Light", Loss::Nothing},
        {"Increase Text Size", Loss::Nothing}, {"Decrease Opacity", Loss::Nothing}};
    const auto& [title, loss] = soak.random.from(kItems);
    soak.detail = title;
    const bool isAsked = soak.program.sheet();
    soak.program.trigger(title);
    return isAsked ? Loss::Nothing : loss;
}

Loss pressKey(Soak& soak)
{
    constexpr std::pair<int, Qt::KeyboardModifiers> kKeys[] = {{Qt::Key_D, kCommand}, {Qt::Key_E, kCommand},
        {Qt::Key_Return, kCommand}, {Qt::Key_Period, kCommand}, {Qt::Key_Left, kCommand}, {Qt::Key_Right, kCommand},
        {Qt::Key_Left, {}}, {Qt::Key_Right, {}}, {Qt::Key_Right, Qt::ShiftModifier}, {Qt::Key_Left, kCommandOption},
        {Qt::Key_Up, {}}, {Qt::Key_End, {}}, {Qt::Key_Escape, {}}, {Qt::Key_W, kCommandShift},
        {Qt::Key_S, kCommandShift}, {Qt::Key_N, kCommand}, {Qt::Key_N, kCommandShift}, {Qt::Key_Equal, kCommand},
        {Qt::Key_Minus, kCommand}, {Qt::Key_BracketLeft, kCommand}, {Qt::Key_Up, kCommandOption},
        {Qt::Key_Down, kCommandShift}, {Qt::Key_Delete, {}}, {Qt::Key_1, kCommand}, {Qt::Key_3, kCommand},
        {Qt::Key_Tab, kCommand}};
    const auto& [key, modifiers] = soak.random.from(kKeys);
    soak.detail = std::to_string(key) + " with " + std::to_string(modifiers.toInt());
    soak.program.fake.accessibility.motionReduced = true; // hiding would take real time
    soak.program.key(key, modifiers);
    return key == Qt::Key_Period ? Loss::TypedText : Loss::Nothing;
}

Loss answerSheet(Soak& soak)
{
    auto& sheet = *soak.program.sheet();
    const auto field = sheet.findChild<QLineEdit*>();
    const bool isYes = !soak.random.oneIn(3);
    if (field)
        field->setText(toQString(soak.detail = soak.random.oddText(3)));
    Program::click(sheet, !isYes ? "Cancel" : field ? "Rename" : "Delete");
    return isYes && !field ? Loss::OneCard : Loss::Nothing;
}

Loss pressHotKey(Soak& soak)
{
    soak.program.fake.accessibility.motionReduced = true; // hiding would take real time
    soak.program.fake.hotKeys.press();
    return Loss::Nothing;
}

Loss type(Soak& soak)
{
    soak.detail = soak.random.oddText(3);
    for (const auto c : toQString(soak.detail)) {
        if (c.isPrint() || c == u'\n' || c == u'\t') {
            QKeyEvent press(QEvent::KeyPress, c == u'\n' ? Qt::Key_Return : 0, Qt::NoModifier, c);
            QCoreApplication::sendEvent(soak.program.editor(), &press);
        }
    }
    return Loss::Nothing;
}

Loss select(Soak& soak)
{
    auto& editor = *soak.program.editor();
    const auto size = static_cast<int>(editor.text().size());
    auto cursor = editor.textCursor();
    cursor.setPosition(soak.random.below(size + 1));
    cursor.setPosition(soak.random.below(size + 1), QTextCursor::KeepAnchor);
    editor.setTextCursor(cursor);
    return Loss::Nothing;
}

Loss undoOrRedo(Soak& soak)
{
    soak.detail = soak.random.oneIn(2) ? "Undo" : "Redo";
    const bool isOfText = soak.program.store().isEditing();
    soak.program.trigger(soak.detail.c_str());
    return isOfText ? Loss::Nothing : Loss::Anything;
}

/// A redo, where the undo allows one, restores the state before the undo.
Loss undoAndRedo(Soak& soak)
{
    auto& undoManager = soak.program.undoManager();
    if (undoManager.canRedo()) // by an earlier undo
        return Loss::Nothing;
    const auto before = contentOf(soak.program.store());
    undoManager.undo();
    if (!undoManager.canRedo())
        return Loss::Anything;
    undoManager.redo();
    if (contentOf(soak.program.store()) != before)
        soak.complaint = "undo, then redo gives the same state";
    return Loss::Anything;
}

Loss letTimePass(Soak& soak)
{
    const auto ticks = soak.random.from(std::array {1, 3, 11, 16, 17, 64, 128, 200, 64 * 61, 64 * 1500}); // of 1/64 s
    soak.detail = std::to_string(ticks) + "/64 s";
    soak.program.fake.mainQueue.advance(Seconds(ticks / 64.0));
    return Loss::Nothing;
}

Loss changePlatform(Soak& soak)
{
    auto& fake = soak.program.fake;
    fake.clock.wallClock += std::chrono::minutes(soak.random.below(121) - 60);
    fake.fileSystem.writeError = soak.random.oneIn(4) ? std::optional<std::string>("No space left") : std::nullopt;
    fake.accessibility.motionReduced = !soak.random.oneIn(3);
    return Loss::Nothing;
}

/// What is saved is what a later start, or another load, finds.
Loss saveAndLoad(Soak& soak)
{
    auto& program = soak.program;
    program.fake.fileSystem.writeError.reset();
    program.store().flushToDisk();
    const bool isEditing = program.store().isEditing(); // the end of the program keeps the edit
    const auto state = [&] {
        return contentOf(program.store()) + std::to_string(program.store().activeDeckIndex()) + ' '
            + std::to_string(program.store().activeCardIndex());
    };
    const auto before = state();
    if (soak.random.oneIn(4)) {
        soak.detail = "restart";
        program.end();
        program.start();
    } else {
        program.store().loadFromDisk();
    }
    if (!isEditing && state() != before)
        soak.complaint = "what was saved is loaded again";
    return Loss::Nothing;
}

// Straight to the store, with odd arguments

template <auto Member, Loss Allowed> Loss directly(Soak& soak)
{
    (soak.program.store().*Member)();
    return Allowed;
}

template <auto Member> Loss withOddText(Soak& soak)
{
    soak.detail = soak.random.oddText(6);
    (soak.program.store().*Member)(soak.detail);
    return Loss::Nothing;
}

Loss setNumbers(Soak& soak)
{
    const auto number = soak.random.from(std::array {-1e300, 0., 0.39, 1.01, 13.9, 17.5, 28.1, HUGE_VAL});
    soak.program.store().setFontSize(number);
    soak.program.store().setOpacity(number);
    return Loss::Nothing;
}

Loss switchDeck(Soak& soak)
{
    const auto index = soak.random.from(
        std::array<std::int64_t, 6> {kLeast, kMost, -1, 0, soak.program.store().deckCount(), soak.random.below(6)});
    soak.detail = std::to_string(index);
    soak.program.store().switchToDeck(index);
    return Loss::Nothing;
}

} // namespace

std::string Random::oddText(int mostPieces)
{
    constexpr std::array kPieces {"", "a", "word ", " ", "\n", "\t", "# ", "- ", "**", "[x](y)", "/\\\"", "é",
        "e\u0301", "日本", "\u00a0", "\u2028", "\u2029", "\u3000", "\ufeff", "😀", "👩‍👩‍👧", "\u202e",
        "\r\n", "\r", "\v", "\x7f", "\u0085", "\ufdd0", "\x01"};
    std::string text;
    for (int i = below(mostPieces + 1); i > 0; --i)
        text += from(kPieces);
    return oneIn(50) ? text + '\0' : text;
}

const std::vector<Operation>& operations()
{
    constexpr auto isFree = [](Program& p) { return p.isFree() && (!p.editor() || p.isWriting()); };
    constexpr auto isWriting = [](Program& p) { return p.isWriting(); };
    constexpr auto isIdle = [](Program& p) { return p.isFree() && !p.store().isEditing(); };
    constexpr auto deleteDeck = directly<&CardStore::deleteActiveDeck, Loss::OneDeck>;
    constexpr auto reset = directly<&CardStore::resetAllData, Loss::Anything>;
    static const std::vector<Operation> all {{"choose from the menus", 25, always, chooseFromMenus},
        {"press a key", 85, isFree, pressKey},
        {"answer the sheet", 60, [](Program& p) { return p.sheet() != nullptr; }, answerSheet},
        {"press the hot key", 4, always, pressHotKey},
        {"show the hidden panel", 60, [](Program& p) { return !p.panel().isVisible(); }, pressHotKey},
        {"type", 70, isWriting, type}, {"select", 25, isWriting, select}, {"undo or redo", 24, always, undoOrRedo},
        {"undo and redo", 12, isIdle, undoAndRedo}, {"let time pass", 60, always, letTimePass},
        {"change the platform", 6, always, changePlatform}, {"save and load", 6, always, saveAndLoad},
        {"rename the deck", 6, always, withOddText<&CardStore::renameDeck>},
        {"create a deck", 4, always, withOddText<&CardStore::createNewDeck>},
        {"switch to a deck", 8, always, switchDeck}, {"set size and opacity", 4, always, setNumbers},
        {"delete the card", 8, always, directly<&CardStore::deleteCard, Loss::OneCard>},
        {"delete one of many decks", 60, [](Program& p) { return p.store().deckCount() > 12; }, deleteDeck},
        {"reset all data", 1, always, reset},
        {"reset many texts", 60, [](Program& p) { return Texts(p.store()).cards.size() > 60; }, reset}};
    return all;
}

} // namespace cuebright::soak
