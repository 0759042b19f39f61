#pragma once

#include "desktop/RunningPanel.h"
#include "model/AppState.h"

#include <filesystem>
#include <optional>
#include <string>

namespace cuebright::test {

/// What the file holds, read strictly: absent unless all of it is good.
[[nodiscard]] std::optional<AppState> stateIn(const std::filesystem::path& stateFile);

/// The card that the next start will show; fails the test and answers empty where there is none.
[[nodiscard]] std::string activeContent(const AppState& state);

/// The number of files beside the one.
[[nodiscard]] int neighboursOf(const std::filesystem::path& file);

/// Adds a card with that text to the active deck, as a user does, without waiting for the save.
void addCard(const RunningPanel& panel, std::string_view text);

/// Waits until the file holds that text.
[[nodiscard]] testing::AssertionResult isSaved(const Home& home, std::string_view text);

/// Goes into the report of the run, unless the test has failed.
void report(const std::string& counts);

} // namespace cuebright::test
