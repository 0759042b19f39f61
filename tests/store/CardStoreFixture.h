#pragma once

#include "store/CardStore.h"
#include "store/UndoManager.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace cuebright::test {

using namespace std::chrono_literals;

using StoreOperation = std::function<void(CardStore&)>;

/// All decks with their cards, then whatever is out of the ordinary: "Talk*[a|b*|c] Demo[d] editing 'x' feedback
/// 'Saved'". Stars mark the active deck and card; "card -3" follows where no card is active.
[[nodiscard]] std::string describe(const CardStore& store);

/// What could be undone and redone: "undo 'Add Card' redo ''".
[[nodiscard]] std::string describe(const UndoManager& undoManager);

/// A store on fake surroundings, loaded from decks in the notation of `describe`.
class CardStoreFixture : public testing::Test {
protected:
    static constexpr std::string_view kStateFile = "/support/Cuebright/state.json";
    /// The date of everything that `open` makes. Deck n has the identifier n00, its cards n01, n02, …
    static constexpr Instant kWritten = Instant(std::chrono::sys_days(std::chrono::year(2026) / 1 / 1));

    /// Makes a new store and forgets what was recorded before.
    void open(std::string_view description);
    /// The same from what the state file holds; absent: there is none.
    void openWithStateFile(std::optional<std::string> content);

    [[nodiscard]] static std::string stateFileOf(std::string_view description);
    [[nodiscard]] std::string& stateFile() { return surroundings.fileSystem.files[std::string(kStateFile)]; }
    [[nodiscard]] std::size_t saves() const { return surroundings.fileSystem.writes.size(); }
    /// Each property about to change, its value at that moment, and the animation: "navigationDirection forward;
    /// activeCardIndex 0 ease-in-out 0.18". Empties the record.
    [[nodiscard]] std::string takeNotices();
    void advance(Seconds duration) { surroundings.mainQueue.advance(duration); }
    [[nodiscard]] const Deck& deck(std::size_t index) const { return store->decks().at(index); }
    [[nodiscard]] const Card& card(std::size_t index) const { return store->cards().at(index); }

    struct Effect {
        std::string before;
        StoreOperation operation;
        std::string after;
        std::string notices;
        std::size_t saves;
        std::string undoName = {};
    };
    /// Checks what each operation does, also where the user wants less motion.
    void expectEffects(const std::vector<Effect>& effects);

    /// Checks that operations on these decks change nothing, tell nobody, and leave nothing to undo or save.
    void expectNothing(const std::vector<std::pair<std::string, StoreOperation>>& cases);

    FakePlatform surroundings;
    std::shared_ptr<UndoManager> undoManager = std::make_shared<UndoManager>();
    std::optional<CardStore> store;

private:
    void record(const Change& change);

    std::string m_notices;
    Subscription m_subscription;
};

} // namespace cuebright::test
