// The configuration dialog beside a bare Qt dialog with the same number of
// widgets, measured in the same run: a session from its start to the first
// page painted (the dialog's end and the session's are not timed, nor is the
// bare dialog's destruction), a page switch (validate, save, load, show),
// and the peak memory of a process doing each (measured by the probe
// program).
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTreeWidget>
#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "BenchInstallation.h"
#include "ShellScenes.h"
#include "shell/ConfigDlg.h"
#include "shell/ConfigWindow.h"

namespace {

// The same widgets, texts, check states and tree rows as the configuration
// dialog on its first page, in a plain QDialog.
void BM_BareDialogFirstPaint(benchmark::State& state) {
    WidgetBlueprint blueprint;
    {
        const BenchInstallation installation;
        blueprint = CaptureConfigDialog();
    }
    for (auto _ : state) {
        auto scene = std::make_unique<BareCopyScene>(blueprint);
        state.PauseTiming();
        scene.reset();
        state.ResumeTiming();
    }
    state.counters["widgets"] = ConfigDialogWidgetCount();
}
BENCHMARK(BM_BareDialogFirstPaint)->Unit(benchmark::kMillisecond);

void BM_SessionStartToFirstPagePainted(benchmark::State& state) {
    const BenchInstallation installation;
    for (auto _ : state) {
        auto scene = std::make_unique<SessionScene>();
        state.PauseTiming();
        scene.reset();
        state.ResumeTiming();
    }
    state.counters["widgets"] = ConfigDialogWidgetCount();
}
BENCHMARK(BM_SessionStartToFirstPagePainted)->Unit(benchmark::kMillisecond);

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Both scenes taken turn about, so that a slow spell of the machine weighs
// on both alike; the figures are the medians of the two, in milliseconds.
void BM_SessionAgainstBareDialog(benchmark::State& state) {
    const BenchInstallation installation;
    const WidgetBlueprint blueprint = CaptureConfigDialog();
    std::vector<double> bare;
    std::vector<double> session;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        auto bareScene = std::make_unique<BareCopyScene>(blueprint);
        bare.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        bareScene.reset();
        timer.restart();
        auto sessionScene = std::make_unique<SessionScene>();
        session.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        sessionScene.reset();
    }
    state.counters["bare_ms"] = Median(bare);
    state.counters["session_ms"] = Median(session);
    state.counters["ratio"] = Median(session) / Median(bare);
}
BENCHMARK(BM_SessionAgainstBareDialog)->Unit(benchmark::kMillisecond)->Iterations(200);

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

// One switch per iteration into a page of the scan group that the dialog has
// not made yet: the page is made, loaded and shown. A fresh dialog is made
// (untimed) whenever every page has been entered once.
void BM_PageSwitchToANewScanPage(benchmark::State& state) {
    const BenchInstallation installation;
    const int scanPages[] = {1, 3, 5, 7, 24, 25};
    std::unique_ptr<CConfigDlg> dialog;
    size_t next = std::size(scanPages);
    for (auto _ : state) {
        if (next == std::size(scanPages)) {
            state.PauseTiming();
            if (dialog) dialog->reject();
            dialog.reset();
            ClearConfigWindow();
            dialog = std::make_unique<CConfigDlg>(0, 0, nullptr);
            dialog->Create();
            dialog->show();
            next = 0;
            state.ResumeTiming();
        }
        dialog->Tree()->setCurrentItem(ItemOf(dialog->Tree(), scanPages[next++]));
    }
    dialog->reject();
    dialog.reset();
    ClearConfigWindow();
}
BENCHMARK(BM_PageSwitchToANewScanPage)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(60)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);

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
