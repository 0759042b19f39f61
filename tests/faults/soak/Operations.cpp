#include "Operations.h"

#include "model/StateFile.h"
#include "platform/qt/TextConversion.h"
#include "store/CardStore.h"

#include <QDialog>
#include <QLineEdit>

#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace cuebright::soak {

namespace {

constexpr auto kCommand = Qt::ControlModifier;
constexpr auto kCommandShift = Qt::ControlModifier | Qt::ShiftModifier;
constexpr auto kCommandOption = Qt::ControlModifier | Qt::AltModifier;
constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();

bool always(const Model&) { return true; }
bool hasSheet(const Model& model) { return model.sheet != Model::Sheet::None; }
bool isFree(const Model& model)
{
    return model.isShown && !hasSheet(model) && (!model.isEditing || model.editor.hasFocus);
}

using Effect = void (*)(Model&);
template <auto Member> void by(Model& model) { (model.*Member)(); }
constexpr Effect kNone = [](Model&) {};
constexpr Effect kBegin = by<&Model::beginEditing>;
constexpr Effect kSave = by<&Model::saveEdit>;
constexpr Effect kCancel = by<&Model::cancelEdit>;
constexpr Effect kNext = by<&Model::nextCard>;
constexpr Effect kPrevious = by<&Model::prevCard>;
constexpr Effect kMoveUp = by<&Model::moveCardUp>;
constexpr Effect kMoveDown = by<&Model::moveCardDown>;
constexpr Effect kHide = by<&Model::hidePanel>;
constexpr Effect kMoveCaret = [](Model& m) { m.editor.isSelectionKnown = false; };
constexpr Effect kLarger = [](Model& m) { m.setFontSize(m.fontSize + 1); };
constexpr Effect kSmaller = [](Model& m) { m.setFontSize(m.fontSize - 1); };
constexpr Effect kMoreOpaque = [](Model& m) { m.setOpacity(m.opacity + 0.1); };
constexpr Effect kLessOpaque = [](Model& m) { m.setOpacity(m.opacity - 0.1); };
constexpr Effect kNewDeck = [](Model& m) { m.createNewDeck("New Deck"); };
constexpr Effect kAskForName = [](Model& m) { m.ask(Model::Sheet::RenameDeck); };
constexpr Effect kAskToDelete = [](Model& m) { m.cardCount() > 1 ? m.ask(Model::Sheet::DeleteCard) : void(); };

void chooseFromMenus(Soak& soak)
{
    struct Row {
        const char* title;
        Effect effect;
        bool isOfCards = true; ///< rests while a sheet waits for its answer
    };
    static const std::vector<Row> kRows {{"New Card", by<&Model::addCard>},
        {"Delete Card", [](Model& m) { m.activeCard() ? kAskToDelete(m) : void(); }}, {"New Deck", kNewDeck},
        {"Delete Deck", by<&Model::deleteActiveDeck>}, {"Rename Deck…", kAskForName}, {"Save Card", kSave},
        {"Cancel Edit", kCancel}, {"Move Card Up", kMoveUp}, {"Move Card Down", kMoveDown},
        {"System", [](Model& m) { m.setTheme("system"); }, false},
        {"Light", [](Model& m) { m.setTheme("light"); }, false}, {"Dark", [](Model& m) { m.setTheme("dark"); }, false},
        {"Increase Text Size", kLarger, false}, {"Decrease Text Size", kSmaller, false},
        {"Increase Opacity", kMoreOpaque, false}, {"Decrease Opacity", kLessOpaque, false}};
    const auto& row = soak.random.from(kRows);
    soak.detail = row.title;
    soak.program.trigger(row.title);
    if (!row.isOfCards || !hasSheet(soak.model))
        row.effect(soak.model);
}

void pressKey(Soak& soak)
{
    struct Row {
        int key;
        Qt::KeyboardModifiers modifiers;
        Effect viewing;
        Effect writing;
    };
    static const std::vector<Row> kRows {{Qt::Key_D, kCommand, kAskToDelete, kAskToDelete},
        {Qt::Key_E, kCommand, kBegin, kSave}, {Qt::Key_Return, kCommand, kBegin, kSave},
        {Qt::Key_Period, kCommand, kNone, kCancel}, {Qt::Key_Left, kCommand, kPrevious, kMoveCaret},
        {Qt::Key_Right, kCommand, kNext, kMoveCaret}, {Qt::Key_Left, {}, kPrevious, kMoveCaret},
        {Qt::Key_Right, {}, kNext, kMoveCaret}, {Qt::Key_Right, Qt::ShiftModifier, kNone, kMoveCaret},
        {Qt::Key_Left, kCommandOption, kNone, kNone}, {Qt::Key_Up, {}, kNone, kMoveCaret},
        {Qt::Key_End, {}, kNone, kMoveCaret}, {Qt::Key_Escape, {}, kNone, kSave},
        {Qt::Key_W, kCommandShift, by<&Model::toggleWordCount>, by<&Model::toggleWordCount>},
        {Qt::Key_S, kCommandShift, kHide, kHide}, {Qt::Key_N, kCommand, by<&Model::addCard>, by<&Model::addCard>},
        {Qt::Key_N, kCommandShift, kNewDeck, kNewDeck}, {Qt::Key_Equal, kCommand, kLarger, kLarger},
        {Qt::Key_Minus, kCommand, kSmaller, kSmaller}, {Qt::Key_BracketRight, kCommand, kMoreOpaque, kMoreOpaque},
        {Qt::Key_BracketLeft, kCommand, kLessOpaque, kLessOpaque}, {Qt::Key_Up, kCommandOption, kMoveUp, kMoveUp},
        {Qt::Key_Down, kCommandShift, kMoveDown, kMoveDown},
        {Qt::Key_1, kCommand, [](Model& m) { m.switchToDeck(0); }, kNone},
        {Qt::Key_3, kCommand, [](Model& m) { m.switchToDeck(2); }, kNone}};
    const auto& row = soak.random.from(kRows);
    soak.detail = std::to_string(row.key) + " with " + std::to_string(row.modifiers.toInt());
    if (row.writing == kHide)
        soak.program.fake.accessibility.motionReduced = true; // or it goes in real time
    soak.program.key(row.key, row.modifiers);
    (soak.model.isEditing ? row.writing : row.viewing)(soak.model);
}

void toggleTimer(Soak& soak)
{
    soak.program.button(soak.program.isTimerRunning() ? "Pause timer" : "Start timer")->click();
    soak.model.toggleTimer();
}

void answerSheet(Soak& soak)
{
    const bool isYes = !soak.random.oneIn(3);
    const bool isDelete = std::exchange(soak.model.sheet, Model::Sheet::None) == Model::Sheet::DeleteCard;
    constexpr std::array kNames {"Talk", "", " ", "\u00a0Q4 \t", "/\\\"日本😀"};
    const std::string name = soak.random.from(kNames);
    soak.detail = isYes ? name : "Cancel";
    if (!isDelete)
        soak.program.sheet()->findChild<QLineEdit*>()->setText(toQString(name));
    soak.program.answer(!isYes ? "Cancel" : isDelete ? "Delete" : "Rename");
    if (isYes)
        isDelete ? soak.model.deleteCard() : soak.model.renameDeck(name);
}

void pressHotKey(Soak& soak)
{
    soak.program.fake.accessibility.motionReduced = true; // or it goes in real time
    soak.program.fake.hotKeys.press();
    soak.model.isShown ? soak.model.hidePanel() : soak.model.showPanel();
}

// The surroundings

void letTimePass(Soak& soak)
{
    const auto ticks = soak.random.from(std::array {1, 3, 11, 16, 17, 64, 128, 200, 64 * 61, 64 * 1500}); // of 1/64 s
    soak.detail = std::to_string(ticks) + "/64 s";
    for (auto fake : {&soak.program.fake, &soak.model.fake})
        fake->mainQueue.advance(Seconds(ticks / 64.0));
}

void changeSurroundings(Soak& soak)
{
    const auto jump = std::chrono::minutes(soak.random.below(121) - 60);
    const bool isFull = soak.random.oneIn(4);
    for (auto fake : {&soak.program.fake, &soak.model.fake}) {
        fake->clock.wallClock += jump;
        fake->fileSystem.writeError = isFull ? std::optional<std::string>("No space left") : std::nullopt;
    }
    soak.program.fake.accessibility.motionReduced = !soak.random.oneIn(3);
}

/// The file as it is, or as another program may have left it.
void loadFile(Soak& soak)
{
    auto& [program, model, random, detail] = soak;
    if (model.saved && random.oneIn(2)) {
        auto& state = *model.saved;
        state.activeCardIndex = random.from(std::array<std::int64_t, 5> {kMost, kLeast, -3, 1, 2});
        if (random.oneIn(4))
            state.activeDeckId.reset();
        if (random.oneIn(4) && !state.decks.empty())
            state.decks.back().cards.clear();
        if (random.oneIn(16))
            state.decks.clear();
        program.fake.fileSystem.files[program.store().stateURL().string()] = std::get<std::string>(
            encodeState({state.decks, state.activeDeckId, state.activeCardIndex, state.opacity, state.fontSize}));
        detail = "changed";
    }
    program.store().loadFromDisk();
    model.load();
}

void restart(Soak& soak)
{
    soak.program.end();
    soak.model.saveEdit();
    soak.model.flush();
    soak.program.start();
    soak.model.start();
}

// Straight to the store, with odd arguments

template <auto InStore, auto InModel> void directly(Soak& soak)
{
    (soak.program.store().*InStore)();
    (soak.model.*InModel)();
}

template <auto InStore, auto InModel> void withOddText(Soak& soak)
{
    soak.detail = soak.random.oddText(6);
    (soak.program.store().*InStore)(soak.detail);
    (soak.model.*InModel)(soak.detail);
}

void switchDeck(Soak& soak)
{
    const auto& model = soak.model;
    const auto index = soak.random.from(std::array<std::int64_t, 7> {
        kLeast, kMost, -1, 0, model.deckIndex, std::ssize(model.decks), soak.random.below(6)});
    soak.detail = std::to_string(index);
    soak.program.store().switchToDeck(index);
    soak.model.switchToDeck(index);
}

template <auto InStore, auto InModel> void withOddNumber(Soak& soak)
{
    const auto number = soak.random.from(std::array {-1e300, 0., 0.39, 1.01, 13.9, 17.5, 28.1, HUGE_VAL});
    (soak.program.store().*InStore)(number);
    (soak.model.*InModel)(number);
}

/// By somebody who does not care whether a card is being edited.
void undoOften(Soak& soak)
{
    const bool isUndo = soak.random.oneIn(2);
    auto& manager = *soak.program.panel().undoManager();
    for (int i = soak.random.oneIn(10) ? 40 : 1; i > 0; --i) {
        isUndo ? manager.undo() : manager.redo();
        isUndo ? soak.model.undo() : soak.model.redo();
    }
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

std::vector<Operation> operations()
{
    constexpr auto deleteDeck = directly<&CardStore::deleteActiveDeck, &Model::deleteActiveDeck>;
    constexpr auto reset = directly<&CardStore::resetAllData, &Model::resetAllData>;
    std::vector<Operation> all {{"choose from the menus", 25, always, chooseFromMenus},
        {"press a key", 85, isFree, pressKey}, {"start or pause the timer", 6, isFree, toggleTimer},
        {"answer the sheet", 60, hasSheet, answerSheet}, {"press the hot key", 4, always, pressHotKey},
        {"show the hidden panel", 60, [](const Model& m) { return !m.isShown; }, pressHotKey},
        {"let time pass", 60, always, letTimePass}, {"change the surroundings", 6, always, changeSurroundings},
        {"load the file", 4, always, loadFile}, {"restart", 1, always, restart},
        {"rename the deck", 6, always, withOddText<&CardStore::renameDeck, &Model::renameDeck>},
        {"create a deck", 4, always, withOddText<&CardStore::createNewDeck, &Model::createNewDeck>},
        {"set the edit's text", 6, always, withOddText<&CardStore::setEditText, &Model::setEditText>},
        {"switch to a deck", 8, always, switchDeck},
        {"set the text size", 3, always, withOddNumber<&CardStore::setFontSize, &Model::setFontSize>},
        {"set the opacity", 3, always, withOddNumber<&CardStore::setOpacity, &Model::setOpacity>},
        {"delete the card", 8, always, directly<&CardStore::deleteCard, &Model::deleteCard>},
        {"move the card up", 4, always, directly<&CardStore::moveCardUp, &Model::moveCardUp>},
        {"move the card down", 4, always, directly<&CardStore::moveCardDown, &Model::moveCardDown>},
        {"dismiss the error", 3, always, directly<&CardStore::dismissError, &Model::dismissError>},
        {"flush", 4, always, directly<&CardStore::flushToDisk, &Model::flush>},
        {"delete the deck", 2, always, deleteDeck},
        {"delete one of many decks", 60, [](const Model& m) { return m.decks.size() > 12; }, deleteDeck},
        {"undo or redo", 8, always, undoOften}, {"reset all data", 1, always, reset},
        {"reset what has grown", 60, [](const Model& m) { return m.undoSteps.size() > 200; }, reset}};
    const auto writing = writingOperations();
    all.insert(all.end(), writing.begin(), writing.end());
    return all;
}

} // namespace cuebright::soak
