#include "markdown/CardParser.h"
#include "support/LargeState.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>
#include <vector>

namespace cuebright::bench {

namespace {

/// The first deck's cards, 300 KB in all, which fit into the cache.
const std::vector<Card>& cards()
{
    static const std::vector<Card> value = largeState().decks.front().cards;
    return value;
}

std::string allCardsAsOneText()
{
    std::string text;
    for (const auto& card : cards())
        text += card.content + "\n\n";
    return text;
}

std::vector<std::string> splitIntoLines(std::string_view text)
{
    std::vector<std::string> lines;
    for (std::size_t start = 0; start <= text.size();) {
        const auto end = std::min(text.find('\n', start), text.size());
        lines.emplace_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

void countBytes(benchmark::State& run)
{
    std::size_t bytes = 0;
    for (const auto& card : cards())
        bytes += card.content.size();
    run.SetBytesProcessed(static_cast<std::int64_t>(bytes) * run.iterations());
}

template <typename Work> void runCardByCard(benchmark::State& run, Work work)
{
    for (auto _ : run) {
        for (const auto& card : cards())
            benchmark::DoNotOptimize(work(card.content));
    }
    countBytes(run);
}

template <typename Work> void runAsOneText(benchmark::State& run, Work work)
{
    const auto text = allCardsAsOneText();
    for (auto _ : run)
        benchmark::DoNotOptimize(work(text));
    countBytes(run);
}

BENCHMARK_CAPTURE(runCardByCard, split, splitIntoLines)->Name("1,000 cards/reference: split into owned lines");
BENCHMARK_CAPTURE(runCardByCard, parse, parseMarkdown)->Name("1,000 cards/parseMarkdown");
BENCHMARK_CAPTURE(runAsOneText, split, splitIntoLines)->Name("one long card/reference: split into owned lines");
BENCHMARK_CAPTURE(runAsOneText, parse, parseMarkdown)->Name("one long card/parseMarkdown");

} // namespace

} // namespace cuebright::bench
