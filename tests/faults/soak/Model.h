#pragma once

#include "model/AppState.h"
#include "support/FakePlatform.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace cuebright::soak {

struct Model;

struct UndoStep {
    std::string actionName;
    std::function<void(Model&)> action;
};

/// The text editor. Positions count UTF-16 units.
struct EditorModel {
    QString text;
    int start = 0; ///< of the selection
    int end = 0;
    bool isSelectionKnown = true; ///< false: wherever the toolkit has put it
    bool hasFocus = true;
    std::vector<QString> history; ///< every text since the edit was opened, which undo and redo may bring back

    void open(const QString& opened);
    void select(int from, int to);
    /// What is typed takes the place of the selection.
    void input(QString typed);
};

/// What ends with the program.
struct DesktopSession {
    bool isEditing = false;
    std::string editText;
    std::string originalText;
    bool isForward = true;
    bool isDeckSwitch = false;
    std::optional<std::string> feedback;
    std::optional<std::string> error;
    bool isErrorDismissed = false;
    int saveFailures = 0;
    std::vector<UndoStep> undoSteps;
    std::vector<UndoStep> redoSteps;
    std::vector<UndoStep>* undoTarget = nullptr; ///< while an undo or redo runs
    std::string performedName;

    enum class Sheet { None, DeleteCard, RenameDeck };
    Sheet sheet = Sheet::None;
    bool isShown = true;
    EditorModel editor;
    bool editBegins = false; ///< in this step

    bool isTimerRunning = false;
    Seconds timeBefore {}; ///< up to the last pause
    Seconds startedAt {};

    PendingTask saving;
    PendingTask endOfFeedback;
    std::shared_ptr<char> life = std::make_shared<char>('\0'); ///< work that waits is done only while it lasts
};

/// The rules of the whole program once more, as plainly as they can be put: values without views, on surroundings of
/// its own that are treated as the program's are.
struct Model : DesktopSession {
    Model() { start(); }

    std::vector<Deck> decks;
    std::int64_t deckIndex = 0;
    std::int64_t cardIndex = 0;
    Uuid transitionId;
    std::string theme = "system";
    double fontSize = 17;
    double opacity = 1;
    bool showsWordCount = false;
    std::optional<AppState> saved; ///< what the state file says
    test::FakePlatform fake;

    [[nodiscard]] Deck* activeDeck();
    [[nodiscard]] Card* activeCard();
    [[nodiscard]] std::int64_t cardCount();

    // The store (Model.cpp)
    void nextCard();
    void prevCard();
    void switchToDeck(std::int64_t index);
    void beginEditing();
    void setEditText(const std::string& text);
    void saveEdit();
    void cancelEdit();
    void addCard();
    void deleteCard();
    void moveCardUp();
    void moveCardDown();
    void createNewDeck(const std::string& name);
    void renameDeck(const std::string& name);
    void deleteActiveDeck();
    void undo();
    void redo();

    // What is kept, what is shown, and time (ModelSurroundings.cpp)
    void setTheme(const std::string& value);
    void setFontSize(double value);
    void setOpacity(double value);
    void toggleWordCount();
    void flush();
    void load();
    void resetAllData();
    void start();
    void showFeedback(const std::string& message);
    void dismissError();
    void showPanel();
    void hidePanel();
    void ask(Sheet question);
    void toggleTimer();
    [[nodiscard]] Seconds shownTime() const;
    /// The text has changed by the user's doing.
    void takeTyped();
    /// Ends a step: the views have seen what happened.
    void settle();

private:
    void keepEdit();
    void insertCard(const Card& card, std::int64_t index, const std::string& actionName);
    void removeCard(std::int64_t index, const std::string& actionName);
    void moveCard(int distance);
    void insertDeck(const Deck& deck, std::int64_t index, const std::string& actionName);
    void removeDeck(std::int64_t index, const std::string& actionName);
    void nameActiveDeck(const std::string& name);
    void registerUndo(const std::string& actionName, const std::function<void(Model&)>& action);
    void perform(std::vector<UndoStep>& from, std::vector<UndoStep>& to);
    void scheduleSave();
    PendingTask later(double seconds, const std::function<void()>& work);
};

} // namespace cuebright::soak
