// The configuration dialog beside a bare Qt dialog with the same number of
// widgets, measured in the same run: a session from its start to the first
// page painted, a page switch (validate, save, load, show), and the peak
// memory of a process doing each (measured by the probe program).
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTreeWidget>
#include <cstdio>
#include <string>

#include "BenchInstallation.h"
#include "ShellScenes.h"
#include "session/ConfigDlg.h"
#include "session/ConfigWindow.h"

namespace {

void BM_BareDialogFirstPaint(benchmark::State& state) {
    const int widgets = ConfigDialogWidgetCount();
    for (auto _ : state) PaintBareDialog(widgets);
    state.counters["widgets"] = widgets;
}
BENCHMARK(BM_BareDialogFirstPaint)->Unit(benchmark::kMillisecond);

void BM_SessionStartToFirstPagePainted(benchmark::State& state) {
    const BenchInstallation installation;
    for (auto _ : state) PaintSessionFirstPage();
    state.counters["widgets"] = ConfigDialogWidgetCount();
}
BENCHMARK(BM_SessionStartToFirstPagePainted)->Unit(benchmark::kMillisecond);

QTreeWidgetItem* ItemOf(QTreeWidget* tree, int page) {
    for (QTreeWidgetItemIterator it(tree); *it; ++it) {
        if ((*it)->data(0, Qt::UserRole).toInt() == page) return *it;
    }
    return nullptr;
}

// Between the two function pages, both made already: each switch validates
// and saves the page left, loads the page entered and shows it.
void BM_PageSwitch(benchmark::State& state) {
    const BenchInstallation installation;
    CConfigDlg dialog(8, 0, nullptr);
    dialog.Create();
    dialog.show();
    QTreeWidgetItem* pages[] = {ItemOf(dialog.Tree(), 0), ItemOf(dialog.Tree(), 8)};
    int next = 0;
    for (auto _ : state) {
        dialog.Tree()->setCurrentItem(pages[next]);
        next ^= 1;
    }
    dialog.reject();
    ClearConfigWindow();
}
BENCHMARK(BM_PageSwitch)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly(true);

// The peak resident memory, in kB, of the probe program doing one scene.
double ProbePeakKb(const std::string& scene) {
    const std::string command = std::string(Q9_MEMORY_PROBE) + " " + scene;
    FILE* probe = popen(command.c_str(), "r");
    if (!probe) return 0;
    double kb = 0;
    if (std::fscanf(probe, "%lf", &kb) != 1) kb = 0;
    pclose(probe);
    return kb;
}

void BM_PeakMemoryOfASession(benchmark::State& state) {
    const std::string bareScene = "bare " + std::to_string(ConfigDialogWidgetCount());
    double bare = 0;
    double session = 0;
    for (auto _ : state) {
        bare = ProbePeakKb(bareScene);
        session = ProbePeakKb("session");
    }
    if (bare <= 0 || session <= 0) {
        state.SkipWithError("the memory probe did not answer");
        return;
    }
    state.counters["bare_kB"] = bare;
    state.counters["session_kB"] = session;
    state.counters["ratio"] = session / bare;
}
BENCHMARK(BM_PeakMemoryOfASession)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
