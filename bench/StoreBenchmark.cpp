// The store's own speed on the real platform: steps, bursts of edits, saves.
#include "support/LargeState.h"

#include "model/StateFile.h"
#include "platform/qt/QtPlatform.h"
#include "store/CardStore.h"

#include <QApplication>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <fstream>

#include <fcntl.h>
#include <unistd.h>

namespace cuebright::bench {

namespace {

/// Counts the writes of state files.
class CountingFileSystem final : public FileSystem {
public:
    explicit CountingFileSystem(FileSystem& real)
        : m_real(real)
    {
    }
    std::optional<std::filesystem::path> applicationSupportDirectory() override
    {
        return m_real.applicationSupportDirectory();
    }
    bool createDirectories(const std::filesystem::path& directory) override
    {
        return m_real.createDirectories(directory);
    }
    bool exists(const std::filesystem::path& path) override { return m_real.exists(path); }
    bool removeFile(const std::filesystem::path& path) override { return m_real.removeFile(path); }
    std::optional<std::string> readFile(const std::filesystem::path& path, std::size_t spareCapacity) override
    {
        return m_real.readFile(path, spareCapacity);
    }
    std::optional<FileError> writeFileAtomically(
        const std::filesystem::path& path, std::string_view content, Readers readers) override
    {
        ++writes;
        return m_real.writeFileAtomically(path, content, readers);
    }

    int writes = 0;

private:
    FileSystem& m_real;
};

/// A store loaded from a temporary folder.
struct Bench {
    explicit Bench(const AppState& state)
    {
        qputenv("XDG_DATA_HOME", folder.path().toUtf8());
        const auto directory = std::filesystem::path(folder.path().toStdString()) / "Cuebright";
        std::filesystem::create_directories(directory);
        std::ofstream(directory / "state.json", std::ios::binary) << encoded(state);
        auto services = platform.services();
        store.emplace(Platform {services.clock, services.uuids, services.mainQueue, files, services.preferences,
            services.accessibility, services.appearance, services.log});
    }

    QTemporaryDir folder;
    QtPlatform platform {(folder.path() + QStringLiteral("/preferences.conf")).toStdString()};
    CountingFileSystem files {platform.services().fileSystem};
    std::optional<CardStore> store;
};

AppState oneDeckOf(std::int64_t cardCount)
{
    AppState state = largeState();
    std::vector<Card> cards;
    for (auto& deck : state.decks) {
        for (auto& card : deck.cards) {
            if (std::ssize(cards) < cardCount)
                cards.push_back(std::move(card));
        }
    }
    state.decks.resize(1);
    state.decks[0].cards = std::move(cards);
    return state;
}

void nextAndPreviousCard(benchmark::State& state)
{
    Bench bench(oneDeckOf(state.range(0)));
    auto& store = *bench.store;
    for (auto _ : state) {
        store.nextCard();
        store.prevCard();
    }
}
BENCHMARK(nextAndPreviousCard)->Arg(10)->Arg(1000)->Arg(100'000)->Unit(benchmark::kNanosecond);

void burstOfThousandEdits(benchmark::State& state)
{
    Bench bench(oneDeckOf(1000));
    auto& store = *bench.store;
    for (auto _ : state) {
        for (int i = 0; i < 1000; ++i) {
            store.beginEditing();
            store.setEditText("# Edit " + std::to_string(i));
            store.saveEdit();
        }
    }
    bench.files.writes = 0;
    QEventLoop loop;
    QTimer::singleShot(600, &loop, &QEventLoop::quit);
    loop.exec();
    state.counters["writes"] = bench.files.writes;
}
BENCHMARK(burstOfThousandEdits)->Iterations(1)->Unit(benchmark::kMillisecond);

void save(benchmark::State& state)
{
    Bench bench(largeState());
    for (auto _ : state)
        bench.store->flushToDisk();
}
BENCHMARK(save)->Iterations(15)->Unit(benchmark::kMillisecond);

void savesReferencePlainWriteAndSync(benchmark::State& state)
{
    Bench bench(largeState());
    const auto text = encoded(largeState());
    const auto path = bench.folder.path().toStdString() + "/plain";
    for (auto _ : state) {
        const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        for (std::size_t written = 0; written < text.size();) {
            const auto count = ::write(file, text.data() + written, text.size() - written);
            if (count <= 0) {
                state.SkipWithError("cannot write");
                break;
            }
            written += static_cast<std::size_t>(count);
        }
        ::fsync(file);
        ::close(file);
    }
}
BENCHMARK(savesReferencePlainWriteAndSync)->Iterations(15)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace cuebright::bench

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
