#pragma once

#include "foundation/Signal.h"
#include "foundation/WeakTarget.h"
#include "model/AppState.h"
#include "platform/MainQueue.h"
#include "platform/Platform.h"
#include "store/Change.h"
#include "store/NavigationDirection.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace cuebright {

class UndoManager;

/// All decks and cards, the active position, the open edit and the display preferences.
/// The one place where any of them changes.
///
/// An operation that asks for the impossible does nothing: no notice, no undo step, no save. Indices count from 0 and
/// may be out of range; there is no active deck or card then. All texts are UTF-8. Lives on the main thread.
class CardStore final {
public:
    /// Reads the preferences and the state file, falling back to the sample decks without a word, and applies the
    /// theme.
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
    [[nodiscard]] std::string positionLabel() const; ///< "CARD 01 / 05"
    [[nodiscard]] std::string footerLabel() const; ///< "1 OF 5"
    [[nodiscard]] NavigationDirection navigationDirection() const { return m_navigationDirection; }
    [[nodiscard]] const Uuid& deckTransitionID() const { return m_deckTransitionID; } ///< fresh after each deck switch
    [[nodiscard]] bool isDeckSwitch() const { return m_isDeckSwitch; } ///< true for 0.16 s after a deck switch
    /// Moves to the following card; stays on the last one and while an edit is open. Saves nothing.
    void nextCard();
    void prevCard();
    /// Opens a deck at its first card. An open edit is kept, without touching the card's date.
    void switchToDeck(std::int64_t index);

    // Editing the active card (CardStoreEditing.cpp)
    [[nodiscard]] bool isEditing() const { return m_isEditing; }
    [[nodiscard]] const std::string& editText() const { return m_editText; } ///< keeps its value after the edit
    void setEditText(std::string text);
    /// Opens an edit; a blank card opens with "# ".
    void beginEditing();
    /// Writes the text into the card, unchanged or not, and closes the edit.
    void saveEdit();
    void cancelEdit();

    // Cards of the active deck (CardStoreCards.cpp)
    /// Appends a card and opens it in the editor.
    void addCard();
    /// Deletes the active card, open edit included, unless it is the deck's last one.
    void deleteCard();
    [[nodiscard]] bool canDeleteCard() const;
    void moveCardUp();
    void moveCardDown();
    [[nodiscard]] bool canMoveCardUp() const;
    [[nodiscard]] bool canMoveCardDown() const;
    /// A message for 2.0 s; replaces the one before.
    void showFeedback(std::string message);
    [[nodiscard]] const std::optional<std::string>& feedbackMessage() const { return m_feedbackMessage; }
    /// Where undo steps go; without one, operations register nothing.
    void setUndoManager(std::weak_ptr<UndoManager> undoManager);

    // Decks (CardStoreDecks.cpp)
    /// Appends a deck with one card and opens it. A blank name becomes "Untitled Deck".
    void createNewDeck(std::string_view name);
    /// A blank name changes nothing.
    void renameDeck(std::string_view name);
    /// Deletes the active deck, open edit included, unless it is the last one.
    void deleteActiveDeck();
    [[nodiscard]] bool canDeleteDeck() const;
    /// The active deck's cards with rules between them; empty without an active deck.
    [[nodiscard]] std::string exportDeckAsMarkdown() const;

    // Display preferences (CardStorePreferences.cpp); each setter stores the preference at once
    [[nodiscard]] const std::string& theme() const { return m_theme; }
    [[nodiscard]] double fontSize() const { return m_fontSize; } ///< points; finite, any value > 0
    [[nodiscard]] double opacity() const { return m_opacity; } ///< 1 = opaque; finite, any value > 0
    [[nodiscard]] bool showWordCount() const { return m_showWordCount; }
    [[nodiscard]] std::int64_t speakingPace() const { return m_speakingPace; } ///< words per minute, at least 1
    void setTheme(std::string theme); ///< "light" and "dark"; anything else follows the system
    void setFontSize(double points); ///< limited to 14 … 28
    void setOpacity(double opacity); ///< limited to 0.4 … 1
    void setSpeakingPace(std::int64_t wordsPerMinute); ///< limited to 80 … 250
    void increaseFontSize();
    void decreaseFontSize();
    void resetFontSize();
    void increaseOpacity();
    void decreaseOpacity();
    void toggleWordCount();
    void applyThemeToApp();
    [[nodiscard]] std::int64_t wordCount() const; ///< of the open edit, else of the active card; Markdown counts
    [[nodiscard]] std::string readingTime() const; ///< "~2 min"

    // Persistence (CardStorePersistence.cpp)
    /// Replaces decks and position from the state file, or by the defaults where it is no good.
    void loadFromDisk();
    /// Asks for a save 0.25 s after the last call.
    void scheduleSave();
    /// Saves now, a pending save included.
    void flushToDisk();
    /// Deletes the state file and the preferences but for word count and speaking pace, and starts again from the
    /// sample decks. Nothing of it can be undone; an open edit stays as it is. Saves nothing.
    void resetAllData();
    [[nodiscard]] const std::optional<std::string>& persistentError() const { return m_persistentError; }
    [[nodiscard]] bool errorDismissed() const { return m_errorDismissed; }
    /// Hides the error until the next save fails.
    void dismissError();
    [[nodiscard]] const std::filesystem::path& appSupportDir() const { return m_appSupportDir; }
    [[nodiscard]] std::filesystem::path stateURL() const;

    /// Sent before each value is stored; read the store later, not inside the notice.
    Signal<const Change&> willChange;

private:
    class AnimatedTransaction;
    using Property = Change::Property;

    template <typename Value> void set(Value& member, std::type_identity_t<Value> value, Property property);
    void notifyWillChange(Property property);

    [[nodiscard]] Deck* mutableActiveDeck();
    [[nodiscard]] Card* mutableActiveCard();
    void replaceActiveCardContent(std::string content);
    void touchActiveDeck();
    void setEditing(bool isEditing);
    void moveTo(std::int64_t cardIndex, NavigationDirection direction);
    void saveTextAndCloseEdit();

    void performCardInsertion(Card card, std::int64_t index, const std::string& actionName);
    void performCardRemoval(std::int64_t index, const std::string& actionName);
    void moveActiveCard(std::int64_t distance);
    void nameActiveDeck(std::string name);
    void performDeckInsertion(Deck deck, std::int64_t index, const std::string& actionName);
    void performDeckRemoval(std::int64_t index, const std::string& actionName);
    template <typename Work> void registerUndo(const std::string& actionName, Work work);

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

    PendingTask m_feedbackWorkItem;
    PendingTask m_saveWorkItem;
    std::int64_t m_consecutiveSaveFailures = 0;
    std::filesystem::path m_appSupportDir;
    std::string m_writeBuffer; ///< kept for the next save, which is faster in memory that is there already
    std::weak_ptr<UndoManager> m_undoManager;
    std::optional<Animation> m_animation; ///< of the transaction that is open
    WeakTarget m_weakTarget;
};

} // namespace cuebright
