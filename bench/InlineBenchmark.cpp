#include "markdown/CardParser.h"
#include "markdown/InlineParser.h"
#include "support/LargeState.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>
#include <vector>

namespace cuebright::bench {

namespace {

constexpr std::size_t kCardLength = 700;

/// The first cards of the large state joined, cut at a line end: about 700 bytes.
std::string cardText()
{
    static const auto state = largeState();
    std::string text;
    for (const auto& card : state.decks.front().cards) {
        text += card.content + '\n';
        if (text.size() >= kCardLength)
            break;
    }
    return text.substr(0, text.rfind('\n', kCardLength) + 1);
}

void countBytes(benchmark::State& run, const std::string& text)
{
    run.SetBytesProcessed(static_cast<std::int64_t>(text.size()) * run.iterations());
    run.SetLabel(std::to_string(text.size()) + " bytes");
}

void parseBlocks(benchmark::State& run)
{
    const auto text = cardText();
    for (auto _ : run)
        benchmark::DoNotOptimize(parseMarkdown(text));
    countBytes(run, text);
}

void renderRuns(benchmark::State& run)
{
    const auto text = cardText();
    for (auto _ : run)
        for (const auto& block : parseMarkdown(text))
            benchmark::DoNotOptimize(renderInline(block.text));
    countBytes(run, text);
}

BENCHMARK(parseBlocks)->Name("a card of 700 bytes/reference: parseMarkdown")->Unit(benchmark::kMicrosecond);
BENCHMARK(renderRuns)->Name("a card of 700 bytes/parseMarkdown and renderInline")->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace cuebright::bench
