// Asking whether a function is registered (ServiceControl op 1): through the
// bindings to the real Q9SSCtrl, answered from the store while the function's
// switch is pending, and, as the baseline, the library's entry point called
// directly through a pointer looked up once.
#include <Q9CfgE.h>
#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "BenchInstallation.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "platform/SharedLibrary.h"
#include "session/ProcessState.h"
#include "session/SiblingLibs.h"

namespace {

void BM_ServiceControlQueryFromLibrary(benchmark::State& state) {
    const BenchInstallation installation;
    if (!installation.Ready()) {
        state.SkipWithError("libQ9SSCtrl.so not found beside libQ9CfgE.so");
        return;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            g_Siblings.ServiceControl(SC_IsRegistered, SSCT_SYSTEM_MONITOR, kServiceOption));
    }
}
BENCHMARK(BM_ServiceControlQueryFromLibrary)->Unit(benchmark::kMicrosecond);

void BM_ServiceControlQueryFromPendingMask(benchmark::State& state) {
    const BenchInstallation installation;
    g_Siblings.MarkPending(0x1, 0);
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            g_Siblings.ServiceControl(SC_IsRegistered, SSCT_SYSTEM_MONITOR, kServiceOption));
    }
}
BENCHMARK(BM_ServiceControlQueryFromPendingMask)->Unit(benchmark::kMicrosecond);

void BM_IsRegisteredCalledDirectly(benchmark::State& state) {
    const BenchInstallation installation;
    platform::SharedLibrary library;
    auto* isRegistered = library.Load(g_szModuleDir, "Q9SSCtrl")
                             ? library.Entry<int32_t(int32_t)>("Q9SSCtrl_IsRegistered")
                             : nullptr;
    if (!isRegistered) {
        state.SkipWithError("libQ9SSCtrl.so not found beside libQ9CfgE.so");
        return;
    }
    for (auto _ : state) benchmark::DoNotOptimize(isRegistered(SSCT_SYSTEM_MONITOR));
}
BENCHMARK(BM_IsRegisteredCalledDirectly)->Unit(benchmark::kMicrosecond);

}  // namespace
