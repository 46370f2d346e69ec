// The "Scheduled scan" page with 100 scheduled scans: made, loaded from the
// scheduler's job keys and shown; saved into the store's schedule sections
// (the session's working copy); applied to the job keys, each write of the
// registry stand-in a whole hive file replaced.
#include <benchmark/benchmark.h>

#include <QWidget>
#include <memory>
#include <string>

#include "BenchInstallation.h"
#include "pages/schedule/SchedulePage.h"
#include "schedule/ScheduleEntry.h"
#include "session/ProcessState.h"
#include "session/StoreCommit.h"

namespace {

constexpr int kEntries = 100;

// 100 distinct weekly scans, each of two folders, in both homes; the page
// lists them from the job keys.
void SaveEntries() {
    g_bScheduleDirty = 0;
    WipeStoreEntries();
    WipeRegistryEntries();
    for (int i = 0; i < kEntries; ++i) {
        ScheduleEntry entry;
        entry.m_nStyle = kScheduleEveryWeek;
        entry.m_time = {0,
                        0,
                        static_cast<uint16_t>(i % 7),
                        0,
                        static_cast<uint16_t>(i % 24),
                        static_cast<uint16_t>(i % 60),
                        0,
                        0};
        entry.m_targets = {{0, "/srv/share/" + std::to_string(i)}, {0, "/home/user/documents"}};
        entry.SaveToStore(i, 1, 0);
        entry.SaveToRegistry(i, 1, 0);
    }
}

void BM_SchedulePageLoadAndShow100(benchmark::State& state) {
    const BenchInstallation installation;
    SaveEntries();
    QWidget parent;
    parent.resize(600, 500);
    parent.show();
    for (auto _ : state) {
        auto page = std::make_unique<CSchedulePage>();
        page->Create(&parent);
        page->show();
        if (page->RowCount() != kEntries) state.SkipWithError("not every entry was listed");
        state.PauseTiming();
        page.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_SchedulePageLoadAndShow100)->Unit(benchmark::kMillisecond);

void BM_SchedulePageSave100(benchmark::State& state) {
    const BenchInstallation installation;
    SaveEntries();
    QWidget parent;
    CSchedulePage page;
    page.Create(&parent);
    // As in a session: the page saves into the store's working copy, which
    // the session commits once at OK.
    BeginStoreEdit();
    for (auto _ : state) page.Save();
    DropWorkingCopy();
}
BENCHMARK(BM_SchedulePageSave100)->Unit(benchmark::kMillisecond);

void BM_SchedulePageApply100(benchmark::State& state) {
    const BenchInstallation installation;
    SaveEntries();
    QWidget parent;
    CSchedulePage page;
    page.Create(&parent);
    for (auto _ : state) page.Apply();
}
BENCHMARK(BM_SchedulePageApply100)->Unit(benchmark::kMillisecond);

}  // namespace
