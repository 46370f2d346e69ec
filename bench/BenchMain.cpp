// Entry point of the benchmarks: a Qt application on the offscreen platform,
// so that dialogs can be made and painted without a display.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <cstdlib>

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
