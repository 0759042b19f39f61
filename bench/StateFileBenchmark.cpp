#include "model/StateFile.h"
#include "support/LargeState.h"

#include <benchmark/benchmark.h>
#include <simdjson.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>

namespace cuebright::bench {

namespace {

const AppState& state()
{
    static const AppState value = largeState();
    return value;
}

StateToEncode stateToEncode()
{
    return {.decks = state().decks,
        .activeDeckId = state().activeDeckId,
        .activeCardIndex = state().activeCardIndex,
        .opacity = state().opacity,
        .fontSize = state().fontSize};
}

/// A temporary state file.
class TemporaryFile final {
public:
    TemporaryFile() { std::ofstream(m_path, std::ios::binary) << encoded(state()); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() { std::filesystem::remove(m_path); }

    [[nodiscard]] std::string read() const
    {
        const auto size = std::filesystem::file_size(m_path);
        std::string text;
        text.reserve(size + kDecodePadding);
        text.resize(size);
        std::ifstream(m_path, std::ios::binary).read(text.data(), static_cast<std::streamsize>(size));
        return text;
    }

private:
    const std::filesystem::path m_path =
        std::filesystem::temp_directory_path() / ("cuebright-benchmark-" + state().decks.front().id.text() + ".json");
};

const TemporaryFile& file()
{
    static const TemporaryFile value;
    return value;
}

void countBytes(benchmark::State& run, std::size_t bytes)
{
    run.SetBytesProcessed(static_cast<std::int64_t>(bytes) * run.iterations());
}

void loadReferenceReadAndParse(benchmark::State& run)
{
    std::size_t size = 0;
    for (auto _ : run) {
        const auto json = file().read();
        simdjson::dom::parser parser;
        benchmark::DoNotOptimize(parser.parse(json).error());
        size = json.size();
    }
    countBytes(run, size);
}

void loadReadAndDecode(benchmark::State& run)
{
    std::size_t size = 0;
    for (auto _ : run) {
        std::optional<AppState> decoded;
        {
            const auto json = file().read();
            decoded = decodeState(json);
            size = json.size();
        }
        if (!decoded)
            run.SkipWithError("the file was refused");
        benchmark::DoNotOptimize(decoded);
        run.PauseTiming(); // the program keeps what it loaded
        decoded.reset();
        run.ResumeTiming();
    }
    countBytes(run, size);
}

void encodeReferenceCopy(benchmark::State& run)
{
    const auto json = encoded(state());
    for (auto _ : run) {
        const std::unique_ptr<char[]> copy(new char[json.size()]);
        std::memcpy(copy.get(), json.data(), json.size());
        benchmark::DoNotOptimize(copy.get());
        benchmark::ClobberMemory();
    }
    countBytes(run, json.size());
}

void encode(benchmark::State& run)
{
    std::size_t size = 0;
    for (auto _ : run) {
        const auto json = encodeState(stateToEncode());
        size = std::get<std::string>(json).size();
        benchmark::DoNotOptimize(json);
    }
    countBytes(run, size);
}

BENCHMARK(loadReferenceReadAndParse)->Name("load/reference: read + parse")->Unit(benchmark::kMillisecond);
BENCHMARK(loadReadAndDecode)->Name("load/read + decode")->Unit(benchmark::kMillisecond);
BENCHMARK(encodeReferenceCopy)->Name("encode/reference: memcpy into fresh memory")->Unit(benchmark::kMillisecond);
BENCHMARK(encode)->Name("encode/encodeState")->Unit(benchmark::kMillisecond);

} // namespace

} // namespace cuebright::bench
