// Asking whether a function is registered (ServiceControl op 1): through the
// bindings to the real Q9SSCtrl, answered from the store while the function's
// switch is pending, and, as the baseline, the library's entry point called
// directly through a pointer looked up once.
#include <Q9CfgE.h>
#include <benchmark/benchmark.h>
#include <dlfcn.h>
#include <stdlib.h>

#include <cstdint>
#include <filesystem>
#include <string>

#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "platform/SharedLibrary.h"
#include "session/ProcessState.h"
#include "session/SiblingLibs.h"

namespace {

// The folder the libraries of this build lie in: that of the store, which
// the benchmark program links.
std::string LibraryDirectory() {
    Dl_info info{};
    if (dladdr(reinterpret_cast<void*>(&Q9CfgE_GetDWEx), &info) == 0 || !info.dli_fname) return {};
    return std::filesystem::path(info.dli_fname).parent_path().string() + "/";
}

// An installation directory of its own (registration state, journal and
// store), with the bindings loading from the build's library folder and the
// system monitor registered.
class Installation {
public:
    Installation() : m_savedModuleDir(g_szModuleDir) {
        char pattern[] = "/tmp/q9-service-bench-XXXXXX";
        m_directory = mkdtemp(pattern);
        setenv("Q9_INSTALL_DIR", m_directory.c_str(), 1);
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, nullptr, Q9CFGE_MODE_PLAIN);
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, "", Q9CFGE_MODE_PLAIN);
        Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_Scan, 0x1);
        g_szModuleDir = LibraryDirectory();
        g_Siblings.Release();
        g_Siblings.MarkPending(0, kAllSwitchBits);
        m_ready = g_Siblings.ServiceControl(SC_Register, SSCT_SYSTEM_MONITOR, kServiceOption) == 1;
    }

    ~Installation() {
        g_Siblings.Release();
        g_Siblings.MarkPending(0, kAllSwitchBits);
        g_szModuleDir = m_savedModuleDir;
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, nullptr, Q9CFGE_MODE_PLAIN);
        std::error_code ignored;
        std::filesystem::remove_all(m_directory, ignored);
    }

    Installation(const Installation&) = delete;
    Installation& operator=(const Installation&) = delete;

    // False when the build's Q9SSCtrl could not be loaded.
    bool Ready() const { return m_ready; }

private:
    std::string m_directory;
    std::string m_savedModuleDir;
    bool m_ready = false;
};

void BM_ServiceControlQueryFromLibrary(benchmark::State& state) {
    const Installation installation;
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
    const Installation installation;
    g_Siblings.MarkPending(0x1, 0);
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            g_Siblings.ServiceControl(SC_IsRegistered, SSCT_SYSTEM_MONITOR, kServiceOption));
    }
}
BENCHMARK(BM_ServiceControlQueryFromPendingMask)->Unit(benchmark::kMicrosecond);

void BM_IsRegisteredCalledDirectly(benchmark::State& state) {
    const Installation installation;
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
