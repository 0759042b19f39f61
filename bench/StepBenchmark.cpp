// A step to another card: from the store's operation to the end of the first paint, compared with a mere repaint.
#include "model/StateFile.h"
#include "platform/FileSystem.h"
#include "platform/UuidSource.h"
#include "support/PanelContent.h"

#include <QTest>

#include <benchmark/benchmark.h>

#include <string>

namespace cuebright::bench {

namespace {

constexpr int kTransitionTime = 250; ///< in milliseconds, with some room

std::string card(int lines)
{
    std::string content = "# A heading with *emphasis*\n";
    for (int i = 1; i < lines; ++i)
        content += "- Point " + std::to_string(i) + " with **strong** words and `code` to say aloud to everybody\n";
    return content;
}

/// The panel's content on two cards of so many lines.
struct Bench : PanelContent {
    explicit Bench(int lines)
    {
        auto services = platform.services();
        const auto now = services.clock.now();
        Deck deck {services.uuids.makeUuid(), "Talk", {}, now, now};
        for (int i = 0; i < 2; ++i)
            deck.cards.push_back({services.uuids.makeUuid(), card(lines), now, now});
        const std::vector<Deck> decks {deck};
        const auto json = std::get<std::string>(encodeState({decks, deck.id, 0, 1, 17}));
        if (services.fileSystem.writeFileAtomically(store.stateURL(), json, FileSystem::Readers::Owner))
            std::abort();
        store.loadFromDisk();
        view.show();
        settle();
    }
    static void settle() { QTest::qWait(kTransitionTime); }
};

void stepReferenceRepaint(benchmark::State& state)
{
    Bench bench(static_cast<int>(state.range(0)));
    for (auto _ : state)
        bench.view.repaint();
}
BENCHMARK(stepReferenceRepaint)->Arg(6)->Arg(2000)->Iterations(40)->Unit(benchmark::kMillisecond);

void step(benchmark::State& state)
{
    Bench bench(static_cast<int>(state.range(0)));
    bool goesOn = true;
    for (auto _ : state) {
        if (goesOn)
            bench.store.nextCard();
        else
            bench.store.prevCard();
        goesOn = !goesOn;
        QCoreApplication::sendPostedEvents(); // the refresh, then the paint
        QCoreApplication::sendPostedEvents();
        state.PauseTiming();
        Bench::settle();
        state.ResumeTiming();
    }
}
BENCHMARK(step)->Arg(6)->Arg(2000)->Iterations(20)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace cuebright::bench
