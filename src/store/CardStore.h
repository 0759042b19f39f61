#pragma once

#include "foundation/Signal.h"
#include "model/AppState.h"
#include "platform/MainQueue.h"
#include "platform/Platform.h"
#include "store/Change.h"

#include <cstdint>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace cuebright {

class UndoManager;

/// All decks and cards, the active position, the open edit and the display preferences.
/// The only place where any of them changes.
///
/// An operation that is not possible does nothing: no signal, no undo step, no save. Indices count from 0; the active
/// ones may be out of range, and then there is no active deck or card. Texts are UTF-8. Main thread only.
class CardStore final {
public:
    /// Reads the preferences, loads from disk and applies the theme. `platform` is copied; what it refers to must
    /// outlive the store.
    explicit CardStore(const Platform& platform);
    CardStore(const CardStore&) = delete;
    CardStore& operator=(const CardStore&) = delete;
    ~CardStore();

    // Position (CardStoreNavigation.cpp)
    [[nodiscard]] const std::vector<Deck>& decks() const { return m_decks; }
    [[nodiscard]] std::int64_t deckCount() const;
    [[nodiscard]] std::int64_t activeDeckIndex() const { return m_activeDeckIndex; }
    [[nodiscard]] std::int64_t activeCardIndex() const { return m_activeCardIndex; }
    [[nodiscard]] const Deck* activeDeck() const; ///< null when there is none
    [[nodiscard]] const Card* activeCard() const; ///< null when there is none
    [[nodiscard]] std::string deckName() const; ///< empty without an active deck
    [[nodiscard]] const std::vector<Card>& cards() const; ///< empty without an active deck
    [[nodiscard]] std::int64_t cardCount() const;
    [[nodiscard]] bool canGoNext() const;
    [[nodiscard]] bool canGoPrev() const;
    [[nodiscard]] std::string positionLabel() const; ///< "CARD 01 / 05"; "CARD 0 / 0" without cards
    [[nodiscard]] std::string footerLabel() const; ///< "1 OF 5"; "0 OF 0" without cards
    [[nodiscard]] NavigationDirection navigationDirection() const { return m_navigationDirection; }
    [[nodiscard]] const Uuid& deckTransitionID() const { return m_deckTransitionID; } ///< new at each deck switch
    [[nodiscard]] bool isDeckSwitch() const { return m_isDeckSwitch; } ///< true for 0.16 s after a deck switch
    /// To the next or previous card, without wrapping; not while an edit is open. Schedules no save.
    void nextCard();
    void prevCard();
    /// Opens another deck at its first card. The text of an open edit is kept; the card's date does not change.
    void switchToDeck(std::int64_t index);

    // Editing the active card (CardStoreEditing.cpp)
    [[nodiscard]] bool isEditing() const { return m_isEditing; }
    [[nodiscard]] const std::string& editText() const { return m_editText; } ///< keeps its value after the edit
    void setEditText(std::string text);
    /// Opens the active card; a blank one opens with "# ", which counts as a change.
    void beginEditing();
    /// Writes the text to the card, renews the dates of card and deck, even if nothing changed, and closes the edit.
    void saveEdit();
    /// Discards the text and closes the edit.
    void cancelEdit();

    // Cards of the active deck (CardStoreCards.cpp)
    /// Saves an open edit, appends a card and opens it for editing.
    void addCard();
    /// Discards an open edit and deletes the active card, unless it is the only one of its deck.
    void deleteCard();
    [[nodiscard]] bool canDeleteCard() const;
    /// Swaps the active card with its neighbour; it stays active. Not while an edit is open.
    void moveCardUp();
    void moveCardDown();
    [[nodiscard]] bool canMoveCardUp() const;
    [[nodiscard]] bool canMoveCardDown() const;
    /// Sets `feedbackMessage` for 2 s, replacing any earlier message.
    void showFeedback(std::string message);
    [[nodiscard]] const std::optional<std::string>& feedbackMessage() const { return m_feedbackMessage; }
    /// Receives the undo steps, if there is one. Steps for cards and deck names act on the deck active when they run.
    /// The destructor removes them.
    void setUndoManager(std::weak_ptr<UndoManager> undoManager);

    // Decks (CardStoreDecks.cpp)
    /// Appends a deck with one card and opens it, keeping the text of an open edit. A blank name becomes "Untitled
    /// Deck".
    void createNewDeck(std::string_view name);
    /// Renames the active deck. A blank name does nothing.
    void renameDeck(std::string_view name);
    /// Drops an open edit and deletes the active deck, unless it is the only one.
    void deleteActiveDeck();
    [[nodiscard]] bool canDeleteDeck() const;
    /// The active deck's cards, separated by "---" lines; empty without an active deck.
    [[nodiscard]] std::string exportDeckAsMarkdown() const;

    // Display preferences (CardStorePreferences.cpp); each setter stores the preference immediately
    [[nodiscard]] const std::string& theme() const { return m_theme; }
    [[nodiscard]] double fontSize() const { return m_fontSize; } ///< points; any finite value > 0
    [[nodiscard]] double opacity() const { return m_opacity; } ///< 1 = opaque; any finite value > 0
    [[nodiscard]] bool showWordCount() const { return m_showWordCount; }
    [[nodiscard]] std::int64_t speakingPace() const { return m_speakingPace; } ///< words per minute, at least 1
    void setTheme(std::string theme); ///< one of `themeNames`; any other text follows the system
    void setFontSize(double points); ///< clamped, as the next two, to the range in DisplayLimits.h
    void setOpacity(double opacity);
    void setSpeakingPace(std::int64_t wordsPerMinute);
    void increaseFontSize(); ///< by 1 point
    void decreaseFontSize();
    void resetFontSize(); ///< to 17 points
    void increaseOpacity(); ///< by 0.1
    void decreaseOpacity();
    void toggleWordCount();
    void applyThemeToApp();
    [[nodiscard]] std::int64_t wordCount() const; ///< of the open edit, else of the active card; markers count
    [[nodiscard]] std::string readingTime() const; ///< "~2 min", rounded up; at least "~1 min"

    // Persistence (CardStorePersistence.cpp)
    /// Replaces decks and position by those in the state file. Falls back silently to the sample decks if the file is
    /// missing, invalid or has no decks. An open edit stays open.
    void loadFromDisk();
    /// Saves 0.25 s after the last call.
    void scheduleSave();
    /// Cancels a pending save and saves immediately.
    void flushToDisk();
    /// Deletes the state file, resets all preferences except word count and speaking pace, loads the sample decks and
    /// empties the undo manager. An open edit stays open. Schedules no save. The two exceptions describe the speaker,
    /// not the look, and the settings' text, which names what is reset, does not mention them.
    void resetAllData();
    /// Set while the last save has failed; results of a save arrive after the current event.
    [[nodiscard]] const std::optional<std::string>& persistentError() const { return m_persistentError; }
    [[nodiscard]] bool errorDismissed() const { return m_errorDismissed; }
    /// Hides the error until the next save ends: a failed one shows it again, a successful one removes it.
    void dismissError();
    [[nodiscard]] const std::filesystem::path& appSupportDir() const { return m_appSupportDir; }
    [[nodiscard]] std::filesystem::path stateURL() const;

    /// Emitted before a property changes: a handler still reads the old value, so schedule a refresh there.
    Signal<const Change&> willChange;

private:
    class AnimatedTransaction;
    using Property = Change::Property;

    template <typename Value> void set(Value& member, std::type_identity_t<Value> value, Property property);
    void notifyWillChange(Property property);

    [[nodiscard]] Deck* mutableActiveDeck();
    [[nodiscard]] Card* mutableActiveCard();
    void setEditing(bool isEditing);
    void moveTo(std::int64_t cardIndex, NavigationDirection direction);
    void saveTextAndCloseEdit();

    [[nodiscard]] Card makeCard(const std::string& title, Instant now);
    void performCardInsertion(Card card, std::int64_t index, const std::string& actionName);
    void performCardRemoval(std::int64_t index, const std::string& actionName);
    void moveActiveCard(std::int64_t distance);
    void nameActiveDeck(std::string name);
    void performDeckInsertion(Deck deck, std::int64_t index, const std::string& actionName);
    void performDeckRemoval(std::int64_t index, const std::string& actionName);
    void registerUndo(const std::string& actionName, std::function<void()> action);

    void openAppSupportDir();
    void readPreferences();
    void applyState(AppState state);
    void writeToDisk();
    void reportSaveSuccess();
    void reportSaveFailure(const std::string& description);

    Platform m_platform;

    std::vector<Deck> m_decks;
    std::int64_t m_activeDeckIndex = 0;
    std::int64_t m_activeCardIndex = 0;
    bool m_isEditing = false;
    std::string m_editText;
    std::string m_originalEditText;
    NavigationDirection m_navigationDirection = NavigationDirection::Forward;
    Uuid m_deckTransitionID;
    bool m_isDeckSwitch = false;
    bool m_showWordCount = false;
    std::int64_t m_speakingPace = 0;
    std::string m_theme;
    double m_fontSize = 0;
    double m_opacity = 0;
    std::optional<std::string> m_feedbackMessage;
    std::optional<std::string> m_persistentError;
    bool m_errorDismissed = false;

    std::deque<PendingTask> m_deckSwitchEnds; ///< one for each switch, the oldest first
    PendingTask m_feedbackWorkItem;
    PendingTask m_saveWorkItem;
    PendingTask m_saveReport;
    std::int64_t m_consecutiveSaveFailures = 0;
    std::filesystem::path m_appSupportDir;
    std::string m_writeBuffer; ///< reused by the next save to avoid reallocating
    std::weak_ptr<UndoManager> m_undoManager;
    std::optional<Animation> m_animation; ///< of the current `AnimatedTransaction`
};

} // namespace cuebright
