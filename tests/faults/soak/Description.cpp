#include "Description.h"

#include "Model.h"
#include "Program.h"
#include "platform/qt/TextConversion.h"
#include "store/CardStore.h"
#include "store/PreferenceKeys.h"

#include <QDebug>
#include <QRegularExpression>

#include <algorithm>

namespace cuebright::soak {

namespace {

// Texts go as the toolkit's, which writes them in quotes and without line feeds.
void describeDecks(QDebug& out, const std::vector<Deck>& decks)
{
    const auto date = [](Instant instant) { return static_cast<qint64>(instant.time_since_epoch().count()); };
    for (const auto& deck : decks) {
        out << "deck" << toQString(deck.id.text() + ' ' + deck.name) << date(deck.createdAt) << date(deck.updatedAt)
            << '\n';
        for (const auto& card : deck.cards)
            out << "card" << toQString(card.id.text() + ' ' + card.content) << date(card.createdAt)
                << date(card.updatedAt) << '\n';
    }
}

/// The program keeps the window's frame besides, in its own time.
void describeSurroundings(QDebug& out, const test::FakePlatform& fake)
{
    const auto write = [&](const auto& value) {
        if constexpr (std::is_arithmetic_v<std::decay_t<decltype(value)>>)
            out << value << '\n';
        else if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::string>)
            out << toQString(value) << '\n';
    };
    for (const auto& [key, value] : fake.preferences.values) {
        if (key != preferenceKeys::kWindowFrame) {
            out << "preference" << toQString(key);
            std::visit(write, value);
        }
    }
    for (const auto& key : fake.preferences.writes) {
        if (key != preferenceKeys::kWindowFrame)
            out << "preference written" << toQString(key) << '\n';
    }
    for (const auto& line : fake.log.lines)
        out << "log" << toQString(line) << '\n';
    out << "saves tried" << fake.fileSystem.writes.size() << "identifiers made" << fake.uuids.count << '\n';
}

std::string nameOfNext(const std::vector<UndoStep>& steps) { return steps.empty() ? "" : steps.back().actionName; }

/// Whether Undo and Redo are those of a text, whose availability is the toolkit's.
bool isUndoOfText(const Model& model)
{
    const bool isWriting = model.isEditing && model.isShown && model.editor.hasFocus;
    return model.sheet == Model::Sheet::None ? isWriting : model.sheet == Model::Sheet::RenameDeck;
}

/// What can be chosen, as far as it changes.
void describeMenus(QDebug& out, Model& model)
{
    const auto item = [&](const std::string& title, bool isEnabled, bool isMarked = false) {
        out << toQString(title) << isEnabled << isMarked;
    };
    const bool isAsked = model.sheet != Model::Sheet::None;
    const auto undo = [&](const std::string& verb, const std::vector<UndoStep>& steps) {
        const auto isStore = !model.isEditing && !isUndoOfText(model) && !steps.empty();
        item(isStore ? verb + ' ' + nameOfNext(steps) : verb, isUndoOfText(model) || (isStore && !isAsked));
    };
    const bool canMove = model.activeCard() && !model.isEditing && !isAsked;
    item("New Card", !isAsked);
    item("Delete Card", model.activeCard() && model.cardCount() > 1 && !isAsked);
    item("New Deck", !isAsked);
    item("Delete Deck", model.decks.size() > 1 && !isAsked);
    item("Rename Deck…", !isAsked);
    item("Export Deck…", !isAsked);
    undo("Undo", model.undoSteps);
    undo("Redo", model.redoSteps);
    item("Save Card", model.isEditing && !isAsked);
    item("Cancel Edit", model.isEditing && !isAsked);
    item("System", true, model.theme == "system");
    item("Light", true, model.theme == "light");
    item("Dark", true, model.theme == "dark");
    item("Move Card Up", canMove && model.cardIndex > 0);
    item("Move Card Down", canMove && model.cardIndex < model.cardCount() - 1);
}

void describeMenus(QDebug& out, Program& program, const Model& model)
{
    static const QRegularExpression kChanging(
        QStringLiteral("^(New|Delete|Rename|Export|Save Card|Cancel Edit|System|Light|Dark|Move Card|(Undo|Redo))"));
    for (const auto action : program.panel().actions()) {
        if (const auto match = kChanging.match(action->text()); match.hasMatch()) {
            const bool isUnknown = match.hasCaptured(2) && isUndoOfText(model);
            out << action->text() << (action->isEnabled() || isUnknown) << action->isChecked();
        } else if (!action->isEnabled()) {
            out << "disabled" << action->text();
        }
    }
}

} // namespace

QString describe(Model& model)
{
    QString text;
    QDebug out(&text);
    out << qSetRealNumberPrecision(17);
    describeDecks(out, model.decks);
    out << "active" << qint64(model.deckIndex) << qint64(model.cardIndex) << "editing" << model.isEditing
        << toQString(model.editText) << "\ntransition" << toQString(model.transitionId.text()) << model.isForward
        << model.isDeckSwitch << "\nfeedback" << toQString(model.feedback.value_or("none")) << "error"
        << toQString(model.error.value_or("none")) << model.isErrorDismissed << "\ndisplay" << toQString(model.theme)
        << model.fontSize << model.opacity << model.showsWordCount << "\nundo" << toQString(nameOfNext(model.undoSteps))
        << "redo" << toQString(nameOfNext(model.redoSteps)) << '\n';
    describeSurroundings(out, model.fake);
    describeMenus(out, model);
    const auto seconds = static_cast<int>(model.shownTime().count());
    out << QString::asprintf("\nTimer: %02d:%02d", seconds / 60, seconds % 60) << model.isTimerRunning << "panel"
        << model.isShown << "sheet" << (model.sheet != Model::Sheet::None) << '\n';
    if (model.isEditing)
        out << "editor" << model.editor.text << model.editor.hasFocus << model.editor.start << model.editor.end << '\n';
    return text;
}

QString describe(Program& program, const Model& model)
{
    const auto& store = program.store();
    const auto& undo = *program.panel().undoManager();
    QString text;
    QDebug out(&text);
    out << qSetRealNumberPrecision(17);
    describeDecks(out, store.decks());
    out << "active" << qint64(store.activeDeckIndex()) << qint64(store.activeCardIndex()) << "editing"
        << store.isEditing() << toQString(store.editText()) << "\ntransition"
        << toQString(store.deckTransitionID().text()) << (store.navigationDirection() == NavigationDirection::Forward)
        << store.isDeckSwitch() << "\nfeedback" << toQString(store.feedbackMessage().value_or("none")) << "error"
        << toQString(store.persistentError().value_or("none")) << store.errorDismissed() << "\ndisplay"
        << toQString(store.theme()) << store.fontSize() << store.opacity() << store.showWordCount() << "\nundo"
        << toQString(undo.undoActionName()) << "redo" << toQString(undo.redoActionName()) << '\n';
    describeSurroundings(out, program.fake);
    describeMenus(out, program, model);
    out << u'\n' + program.button("Timer: ")->accessibleName() << program.isTimerRunning() << "panel"
        << program.panel().isVisible() << "sheet" << (program.sheet() != nullptr) << '\n';
    if (const auto editor = program.editor()) {
        const auto& known = model.editor;
        const auto range =
            known.isSelectionKnown ? editor->selectedRange() : TextRange {known.start, known.end - known.start};
        out << "editor" << editor->text() << (program.panel().focusWidget() == editor) << range.location
            << range.location + range.length << '\n';
    }
    return text;
}

QString difference(const QString& expected, const QString& actual)
{
    if (expected == actual)
        return {};
    const auto left = expected.split(u'\n');
    const auto right = actual.split(u'\n');
    const auto [wanted, got] = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    const auto place = std::mismatch(wanted->begin(), wanted->end(), got->begin(), got->end()).first - wanted->begin();
    const auto start = std::max<qsizetype>(place - 150, 0);
    return QStringLiteral("expected: %1\nactual:   %2").arg(wanted->mid(start, 300), got->mid(start, 300));
}

} // namespace cuebright::soak
