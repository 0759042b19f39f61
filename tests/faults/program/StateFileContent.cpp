#include "faults/program/StateFileContent.h"

#include "model/StateFile.h"

#include <algorithm>
#include <iostream>

namespace cuebright::test {

std::optional<AppState> stateIn(const std::filesystem::path& stateFile)
{
    std::error_code ignored;
    return std::filesystem::is_regular_file(stateFile, ignored) ? decodeState(readFile(stateFile)) : std::nullopt;
}

std::string activeContent(const AppState& state)
{
    const auto deck =
        std::ranges::find(state.decks, state.activeDeckId, [](const Deck& d) { return std::optional(d.id); });
    const auto index = static_cast<std::size_t>(state.activeCardIndex);
    if (deck != state.decks.end() && index < deck->cards.size())
        return deck->cards[index].content;
    ADD_FAILURE() << "no active card";
    return {};
}

int neighboursOf(const std::filesystem::path& file)
{
    const std::filesystem::directory_iterator entries(file.parent_path());
    return static_cast<int>(
        std::ranges::count_if(begin(entries), end(entries), [&](const auto& entry) { return entry.path() != file; }));
}

void addCard(const RunningPanel& panel, std::string_view text)
{
    panel.press("ctrl+n");
    ASSERT_TRUE(panel.showsButton("Save card"));
    panel.press("ctrl+a");
    panel.type(text);
    panel.press("Escape");
}

testing::AssertionResult isSaved(const Home& home, std::string_view text)
{
    const bool seen = waitUntil([&] { return readFile(home.stateFile()).find(text) != std::string::npos; });
    return seen ? testing::AssertionSuccess() : testing::AssertionFailure() << "not saved: " << text;
}

void report(const std::string& counts)
{
    if (!testing::Test::HasFailure())
        std::cout << "counts: " << counts << std::endl;
}

} // namespace cuebright::test
