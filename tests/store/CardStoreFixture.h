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

/// All decks with their cards, then what is unusual: "Talk*[a|b*|c] Demo[d] editing 'x' feedback
/// 'Saved'". Stars mark the active deck and card; "card -3" follows if no card is active.
[[nodiscard]] std::string describe(const CardStore& store);

/// What could be undone and redone: "undo 'Add Card' redo ''".
[[nodiscard]] std::string describe(const UndoManager& undoManager);

/// A store on a fake platform, loaded from decks in the notation of `describe`.
class CardStoreFixture : public testing::Test {
protected:
    static constexpr std::string_view kStateFile = "/support/Cuebright/state.json";
    /// The date of all decks and cards that `open` makes. Deck n has the identifier n00, its cards n01, n02, …
    static constexpr Instant kWritten = Instant(std::chrono::sys_days(std::chrono::year(2026) / 1 / 1));

    /// Makes a new store and clears all records.
    void open(std::string_view description);
    /// The same from the content of the state file; absent: no file.
    void openWithStateFile(std::optional<std::string> content);

    [[nodiscard]] static std::string stateFileOf(std::string_view description);
    [[nodiscard]] std::string& stateFile() { return fake.fileSystem.files[std::string(kStateFile)]; }
    [[nodiscard]] std::size_t saves() const { return fake.fileSystem.writes.size(); }
    /// Performs the operation and checks that each property that changes was notified.
    void perform(const StoreOperation& operation);
    void advance(Seconds duration) { fake.mainQueue.advance(duration); }
    [[nodiscard]] const Deck& deck(std::size_t index) const { return store->decks().at(index); }
    [[nodiscard]] const Card& card(std::size_t index) const { return store->cards().at(index); }

    struct Effect {
        std::string before;
        StoreOperation operation;
        std::string after;
        std::size_t saves;
        std::string undoName = {};
    };
    /// Checks what each operation does.
    void expectEffects(const std::vector<Effect>& effects);

    /// Checks that operations on these decks change, notify, undo and save nothing.
    void expectNothing(const std::vector<std::pair<std::string, StoreOperation>>& cases);

    FakePlatform fake;
    std::shared_ptr<UndoManager> undoManager = std::make_shared<UndoManager>();
    std::optional<CardStore> store;
    std::vector<Change> changes; ///< notified since `open` or `perform`

private:
    Subscription m_subscription;
};

} // namespace cuebright::test
