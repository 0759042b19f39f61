#include <QApplication>

#include <benchmark/benchmark.h>

/// Runs benchmarks that paint, without a display.
int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "default.warning=false"); // the offscreen platform's
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
