#pragma once

#include "desktop/RunningPanel.h"
#include "model/AppState.h"

#include <filesystem>
#include <optional>
#include <string>

namespace cuebright::test {

/// The state in the file; absent if it is invalid.
[[nodiscard]] std::optional<AppState> stateIn(const std::filesystem::path& stateFile);

/// The content of the active card; fails the test if there is none.
[[nodiscard]] std::string activeContent(const AppState& state);

/// The number of other files in its folder.
[[nodiscard]] int neighboursOf(const std::filesystem::path& file);

/// Adds a card by keyboard, without waiting for the save.
void addCard(const RunningPanel& panel, std::string_view text);

/// Waits until the file holds that text.
[[nodiscard]] testing::AssertionResult isSaved(const Home& home, std::string_view text);

/// Prints the counts for scripts/faults, unless the test has failed.
void report(const std::string& counts);

} // namespace cuebright::test
