// A key in the editor: delivered, in the store, counted in the footer, on the screen.
#include "support/PanelContent.h"
#include "ui/menu/EditCommands.h"
#include "ui/menu/MainMenu.h"
#include "ui/menu/StatusItem.h"
#include "ui/panel/NotesPanel.h"
#include "ui/panel/PanelController.h"

#include <QPlainTextEdit>
#include <QTest>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

namespace cuebright::bench {

namespace {

/// The panel's content with one card open in the editor.
struct Bench : PanelContent {
    explicit Bench(const std::string& content)
    {
        store.toggleWordCount();
        store.beginEditing();
        store.setEditText(content);
        store.saveEdit();
        view.show();
        store.beginEditing();
        QCoreApplication::processEvents();
    }

    QPlainTextEdit& editor() { return *view.findChild<QPlainTextEdit*>(); }
    void placeCaret(int position)
    {
        auto cursor = editor().textCursor();
        cursor.setPosition(position);
        editor().setTextCursor(cursor);
        QCoreApplication::processEvents();
    }
};

std::string repeated(const std::string& piece, std::size_t size)
{
    std::string text;
    while (text.size() < size)
        text += piece;
    text.resize(size);
    return text;
}

/// Lines of 20 to 500 characters.
std::string lines(std::size_t size)
{
    auto text = repeated("the speaker reads this line aloud and slowly ", size);
    for (std::size_t end = 0, length = 20; end < size; end += length, length = length % 481 + 60)
        text[end] = '\n';
    return text;
}

std::string words(std::size_t size) { return repeated("lorem ipsum dolor sit amet ", size); }
std::string emoji(std::size_t size) { return repeated("👩‍👩‍👧", size - size % 18); }
std::string oneWord(std::size_t size) { return std::string(size, 'a'); }

void key(benchmark::State& state, const std::function<std::string(std::size_t)>& make)
{
    Bench bench(make(static_cast<std::size_t>(state.range(0))));
    bench.placeCaret(bench.editor().document()->characterCount() / 2);
    double slowest = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        QTest::keyClick(&bench.editor(), 'x');
        QCoreApplication::processEvents();
        slowest = std::max(slowest, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    state.counters["slowest_ms"] = slowest * 1000;
}
BENCHMARK_CAPTURE(key, InLines, lines)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(key, InOneLine, words)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(key, InOneLineOfEmoji, emoji)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(key, InOneWord, oneWord)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

/// Everything that follows the store while the settings are closed: panel, main menu and status item.
struct Observers {
    explicit Observers(Bench& bench)
        : controller(bench.context)
        , edit(bench.store, controller.panelWindow())
        , mainMenu(bench.context, edit, controller.panelWindow(), [](Command) {})
        , statusItem(bench.context, controller, [] {})
    {
    }

    PanelController controller;
    EditCommands edit;
    MainMenu mainMenu;
    StatusItem statusItem;
};

/// Costs the same whatever the number of decks.
void keyAmongDecks(benchmark::State& state)
{
    Bench bench(lines(1000));
    bench.store.cancelEdit();
    while (bench.store.deckCount() < state.range(0))
        bench.store.createNewDeck("Deck " + std::to_string(bench.store.deckCount()));
    bench.store.beginEditing();
    Observers observers(bench);
    QCoreApplication::processEvents();
    bench.store.flushToDisk();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // no event loop runs here to do it
    std::vector<std::clock_t> times;
    for (auto _ : state) {
        const auto start = std::clock();
        QTest::keyClick(&bench.editor(), 'x');
        QCoreApplication::processEvents();
        times.push_back(std::clock() - start);
    }
    std::nth_element(times.begin(), times.begin() + std::ssize(times) / 2, times.end());
    state.counters["median_cpu_ms"] = 1000.0 * static_cast<double>(times[times.size() / 2]) / CLOCKS_PER_SEC;
}
BENCHMARK(keyAmongDecks)->Arg(3)->Arg(10'000)->Iterations(500)->Unit(benchmark::kMillisecond);

/// Qt's editor with nothing around it.
void keysReferencePlainTextEdit(benchmark::State& state)
{
    QPlainTextEdit editor;
    editor.resize(600, 400);
    editor.setPlainText(QString::fromStdString(words(static_cast<std::size_t>(state.range(0)))));
    editor.show();
    for (auto _ : state) {
        QTest::keyClick(&editor, 'x');
        QCoreApplication::processEvents();
    }
}
BENCHMARK(keysReferencePlainTextEdit)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

void openAnEdit(benchmark::State& state, const std::function<std::string(std::size_t)>& make)
{
    Bench bench(make(static_cast<std::size_t>(state.range(0))));
    for (auto _ : state) {
        state.PauseTiming();
        bench.store.cancelEdit();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        bench.store.beginEditing();
        QCoreApplication::processEvents();
    }
}
BENCHMARK_CAPTURE(openAnEdit, OfOneLine, words)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openAnEdit, OfOneWord, oneWord)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace cuebright::bench
